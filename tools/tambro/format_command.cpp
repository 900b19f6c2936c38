#include "format_command.h"

#include "text_table.h"

#include <TAMBRO_Global.h>

#include <QDateTime>
#include <QJsonArray>
#include <QJsonObject>

#include <optional>

namespace {

constexpr int MaxDecimals = 99;

// Each value the way the user may write it; nothing when it does not parse,
// so that a typing error is never shown as a zero.
std::optional<double> sizeOf(const QString &text)
{
    bool ok = false;
    const double size = text.toDouble(&ok);
    return ok ? std::optional<double>(size) : std::nullopt;
}

std::optional<int> decimalsOf(const QString &text)
{
    if (text.isNull())
        return 1; // as the details view writes sizes
    bool ok = false;
    const int decimals = text.toInt(&ok);
    return ok && decimals >= 0 && decimals <= MaxDecimals ? std::optional<int>(decimals) : std::nullopt;
}

std::optional<QDateTime> dateOf(const QString &text)
{
    const QDateTime date = QDateTime::fromString(text, Qt::ISODate);
    return date.isValid() ? std::optional<QDateTime>(date) : std::nullopt;
}

std::optional<int> durationOf(const QString &text)
{
    bool ok = false;
    const int milliseconds = text.toInt(&ok);
    return ok ? std::optional<int>(milliseconds) : std::nullopt;
}

template<typename Parse>
QString firstUnparsed(const QStringList &texts, Parse parse, const QString &option, const QString &expected)
{
    for (const QString &text : texts) {
        if (!parse(text))
            return QStringLiteral("--%1 needs %2, not '%3'").arg(option, expected, text);
    }
    return QString();
}

QJsonObject written(const char *kind, const QString &given, const QString &text)
{
    return {{QStringLiteral("kind"), QLatin1String(kind)},
            {QStringLiteral("given"), given},
            {QStringLiteral("text"), text}};
}

QString textTable(const QJsonArray &values)
{
    TextTable table({QStringLiteral("KIND"), QStringLiteral("GIVEN"), QStringLiteral("TEXT")});
    for (const QJsonValue &value : values)
        table.addRow({value[QStringLiteral("kind")].toString(), value[QStringLiteral("given")].toString(),
                      value[QStringLiteral("text")].toString()});
    return table.toString();
}

} // namespace

QString formatMisuse(const Request &request)
{
    const FormatValues &values = request.format;
    if (values.sizes.isEmpty() && values.dates.isEmpty() && values.durations.isEmpty())
        return QStringLiteral("'format' needs --size, --date or --duration");
    if (!values.decimals.isNull() && values.sizes.isEmpty())
        return QStringLiteral("--decimals goes with --size");
    if (!decimalsOf(values.decimals))
        return QStringLiteral("--decimals needs a whole number from 0 to %1, not '%2'").arg(MaxDecimals).arg(values.decimals);
    QString why = firstUnparsed(values.sizes, sizeOf, QStringLiteral("size"), QStringLiteral("a number of bytes"));
    if (why.isEmpty())
        why = firstUnparsed(values.dates, dateOf, QStringLiteral("date"), QStringLiteral("an ISO 8601 date and time"));
    if (why.isEmpty())
        why = firstUnparsed(values.durations, durationOf, QStringLiteral("duration"),
                            QStringLiteral("a whole number of milliseconds"));
    return why;
}

int runFormatCommand(QTextStream &out, const Request &request)
{
    const FormatValues &values = request.format;
    const int decimals = *decimalsOf(values.decimals);
    QJsonArray report;
    for (const QString &size : values.sizes) {
        const QString text = values.decimals.isNull() ? TAMBRO_Global::getDetailViewSizeStr(*sizeOf(size))
                                                      : TAMBRO_Global::uintSizeToGbMbStr(*sizeOf(size), decimals);
        report.append(written("size", size, text));
    }
    for (const QString &date : values.dates)
        report.append(written("date", date, TAMBRO_Global::convertDateTime(*dateOf(date))));
    for (const QString &duration : values.durations)
        report.append(written("duration", duration, TAMBRO_Global::convertTime(*durationOf(duration))));
    return printReport(out, request, report, textTable);
}
