#include "type_command.h"

#include "text_table.h"

#include <TAMBRO_Global.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

struct Predicate
{
    const char *name;
    bool (*holds)(const QString &name);
};

// The library's public predicates, in the order the table shows them.
const Predicate Predicates[] = {
    {"audio", TAMBRO_Global::isAudioExtension},
    {"video", TAMBRO_Global::isVideoExtension},
    {"image", TAMBRO_Global::isImageExtension},
    {"thumbnail", TAMBRO_Global::isThumbExtension},
    {"jpg", TAMBRO_Global::isJpgExtension},
    {"bookmark", TAMBRO_Global::isBookMarkExtension},
    {"lightPattern", TAMBRO_Global::isGlintExtension},
    {"ringTone", TAMBRO_Global::canAsRingTone},
};

QJsonObject describe(const QString &name)
{
    QJsonObject answers{{QStringLiteral("name"), name}};
    for (const Predicate &predicate : Predicates)
        answers.insert(QLatin1String(predicate.name), predicate.holds(name));
    answers.insert(QStringLiteral("bigIcon"), TAMBRO_Global::getFileIconByType(name, true));
    answers.insert(QStringLiteral("smallIcon"), TAMBRO_Global::getFileIconByType(name, false));
    return answers;
}

QString textTable(const QJsonArray &names)
{
    QStringList headers{QStringLiteral("NAME")};
    for (const Predicate &predicate : Predicates)
        headers << QString::fromLatin1(predicate.name).toUpper();
    headers << QStringLiteral("BIG ICON") << QStringLiteral("SMALL ICON");
    TextTable table(headers);
    for (const QJsonValue &value : names) {
        const QJsonObject answers = value.toObject();
        QStringList row{answers[QStringLiteral("name")].toString()};
        for (const Predicate &predicate : Predicates)
            row << (answers[QLatin1String(predicate.name)].toBool() ? QStringLiteral("yes")
                                                                    : QStringLiteral("-"));
        row << answers[QStringLiteral("bigIcon")].toString()
            << answers[QStringLiteral("smallIcon")].toString();
        table.addRow(row);
    }
    return table.toString();
}

} // namespace

int runTypeCommand(QTextStream &out, const Request &request)
{
    QJsonArray names;
    for (const QString &name : request.arguments)
        names.append(describe(name));
    return printReport(out, request, names, textTable);
}
