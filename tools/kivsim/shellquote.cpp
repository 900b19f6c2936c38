#include "shellquote.h"

#include <QRegularExpression>

QString shellQuote(const QString &text)
{
    static const QRegularExpression plain(QStringLiteral("^[A-Za-z0-9_@%+=:,./-]+$"));
    if (plain.match(text).hasMatch())
        return text;
    QString quoted = text;
    quoted.replace(u'\'', QLatin1String("'\\''"));
    return u'\'' + quoted + u'\'';
}

QString shellQuote(const QStringList &words)
{
    QStringList quoted;
    for (const QString &word : words)
        quoted << shellQuote(word);
    return quoted.join(u' ');
}
