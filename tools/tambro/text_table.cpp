#include "text_table.h"

#include <algorithm>

namespace {

QString escapeOf(QChar c)
{
    switch (c.unicode()) {
    case u'\\':
        return QStringLiteral("\\\\");
    case u'\n':
        return QStringLiteral("\\n");
    case u'\r':
        return QStringLiteral("\\r");
    case u'\t':
        return QStringLiteral("\\t");
    }
    return QStringLiteral("\\x%1").arg(c.unicode(), 2, 16, QLatin1Char('0'));
}

// Keeps the start and the end of a long cell, which for a path are the
// parts that tell most.
QString fitted(const QString &cell)
{
    if (cell.size() <= TextTable::MaxColumnWidth)
        return cell;
    const qsizetype kept = TextTable::MaxColumnWidth - 1;
    return cell.left(kept / 2) + QChar(0x2026) + cell.right(kept - kept / 2);
}

} // namespace

QString escapedForTerminal(const QString &text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (const QChar c : text) {
        if (c == u'\\' || c.category() == QChar::Other_Control)
            escaped += escapeOf(c);
        else
            escaped += c;
    }
    return escaped;
}

TextTable::TextTable(const QStringList &headers)
{
    addRow(headers);
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList shown;
    for (const QString &cell : cells)
        shown << escapedForTerminal(cell);
    // The last column pads nothing after it: only the others are cut to fit.
    for (qsizetype column = 0; column + 1 < shown.size(); ++column)
        shown[column] = fitted(shown[column]);
    m_rows.append(shown);
}

QString TextTable::toString() const
{
    QList<qsizetype> widths(m_rows.first().size(), 0);
    for (const QStringList &row : m_rows) {
        for (qsizetype column = 0; column < row.size() && column < widths.size(); ++column)
            widths[column] = std::max(widths[column], row[column].size());
    }
    QString text;
    for (const QStringList &row : m_rows) {
        QStringList padded;
        for (qsizetype column = 0; column < widths.size(); ++column)
            padded.append(row.value(column).leftJustified(widths[column]));
        QString line = padded.join(QStringLiteral("  "));
        while (line.endsWith(u' '))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}
