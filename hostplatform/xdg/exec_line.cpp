#include "exec_line.h"

#include <QUrl>

namespace KivHost {

namespace {

bool isSeparator(QChar c)
{
    return c == u' ' || c == u'\t' || c == u'\n';
}

bool isQuotedEscape(QChar c)
{
    return c == u'"' || c == u'`' || c == u'$' || c == u'\\';
}

QString itemArgument(const QString &item)
{
    if (item.startsWith(QLatin1String("file:"))) {
        const QString path = QUrl(item).toLocalFile();
        if (!path.isEmpty())
            return path;
    }
    return item;
}

// One argument with its field codes expanded; %F %U and %i here give nothing.
QString expandedArgument(const QString &argument, const DesktopEntry &entry,
                         const QStringList &items, bool *hadCode)
{
    QString out;
    for (qsizetype i = 0; i < argument.size(); ++i) {
        if (argument[i] != u'%') {
            out.append(argument[i]);
            continue;
        }
        if (++i == argument.size())
            break; // a '%' ending the line is no field code
        *hadCode = true;
        switch (argument[i].unicode()) {
        case u'%': out.append(u'%'); break;
        case u'f':
        case u'u':
            if (!items.isEmpty())
                out.append(itemArgument(items.first()));
            break;
        case u'c': out.append(entry.name); break;
        case u'k': out.append(entry.path); break;
        default: break;
        }
    }
    return out;
}

} // namespace

QStringList execArguments(const QString &exec)
{
    QStringList arguments;
    QString current;
    bool inArgument = false;
    bool quoted = false;
    for (qsizetype i = 0; i < exec.size(); ++i) {
        const QChar c = exec[i];
        if (quoted) {
            if (c == u'"') {
                quoted = false;
            } else if (c != u'\\') {
                current.append(c);
            } else if (i + 1 < exec.size() && isQuotedEscape(exec[i + 1])) {
                current.append(exec[++i]);
            } else {
                return {};
            }
        } else if (isSeparator(c)) {
            if (inArgument)
                arguments.append(current);
            current.clear();
            inArgument = false;
        } else {
            quoted = c == u'"';
            if (!quoted)
                current.append(c);
            inArgument = true;
        }
    }
    if (quoted)
        return {};
    if (inArgument)
        arguments.append(current);
    return arguments;
}

QStringList commandLine(const DesktopEntry &entry, const QStringList &items)
{
    QStringList command;
    for (const QString &argument : execArguments(entry.exec)) {
        if (argument == QLatin1String("%F") || argument == QLatin1String("%U")) {
            for (const QString &item : items)
                command.append(itemArgument(item));
        } else if (argument == QLatin1String("%i")) {
            if (!entry.icon.isEmpty())
                command << QStringLiteral("--icon") << entry.icon;
        } else {
            bool hadCode = false;
            const QString expanded = expandedArgument(argument, entry, items, &hadCode);
            if (!hadCode || !expanded.isEmpty())
                command.append(expanded);
        }
    }
    return command;
}

} // namespace KivHost
