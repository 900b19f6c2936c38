#include "name_command.h"

#include "text_table.h"

#include <TAMBRO_Char_Validator.h>
#include <TAMBRO_Global.h>

#include <QJsonArray>
#include <QJsonObject>

namespace {

// Each character appended at the cursor; a refused one is not kept.
QJsonObject typeName(const QString &typed)
{
    const TAMBRO_Char_Validator validator;
    QString name;
    QJsonArray refused;
    for (qsizetype i = 0; i < typed.size(); ++i) {
        QString candidate = name + typed.at(i);
        int position = int(candidate.size());
        if (validator.validate(candidate, position) == QValidator::Invalid)
            refused.append(QJsonObject{{QStringLiteral("keystroke"), int(i + 1)},
                                       {QStringLiteral("character"), QString(typed.at(i))}});
        else
            name = candidate;
    }
    return {{QStringLiteral("typed"), typed}, {QStringLiteral("refused"), refused}, {QStringLiteral("name"), name}};
}

QString namesTable(const QJsonArray &names)
{
    TextTable table({QStringLiteral("TYPED"), QStringLiteral("REFUSED"), QStringLiteral("NAME")});
    for (const QJsonValue &entry : names) {
        QStringList refused;
        for (const QJsonValue &keystroke : entry[QStringLiteral("refused")].toArray())
            refused << QStringLiteral("%1 at %2").arg(keystroke[QStringLiteral("character")].toString())
                           .arg(keystroke[QStringLiteral("keystroke")].toInt());
        table.addRow({entry[QStringLiteral("typed")].toString(),
                      refused.isEmpty() ? QStringLiteral("-") : refused.join(QStringLiteral(", ")),
                      entry[QStringLiteral("name")].toString()});
    }
    return table.toString();
}

QString recipientKind(bool mobile, bool email)
{
    if (mobile && email)
        return QStringLiteral("both");
    if (mobile)
        return QStringLiteral("phone number");
    return email ? QStringLiteral("e-mail address") : QStringLiteral("neither");
}

QString recipientsTable(const QJsonArray &recipients)
{
    TextTable table({QStringLiteral("TEXT"), QStringLiteral("COULD BE")});
    for (const QJsonValue &entry : recipients)
        table.addRow({entry[QStringLiteral("text")].toString(), entry[QStringLiteral("kind")].toString()});
    return table.toString();
}

} // namespace

int runNameCommand(QTextStream &out, const Request &request)
{
    QJsonArray names;
    for (const QString &typed : request.arguments)
        names.append(typeName(typed));
    return printReport(out, request, names, namesTable);
}

int runRecipientCommand(QTextStream &out, const Request &request)
{
    QJsonArray recipients;
    for (const QString &text : request.arguments) {
        const bool mobile = TAMBRO_Global::isMobile(text);
        const bool email = TAMBRO_Global::isEmail(text);
        recipients.append(QJsonObject{{QStringLiteral("text"), text},
                                      {QStringLiteral("phoneNumber"), mobile},
                                      {QStringLiteral("email"), email},
                                      {QStringLiteral("kind"), recipientKind(mobile, email)}});
    }
    return printReport(out, request, recipients, recipientsTable);
}
