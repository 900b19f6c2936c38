#include "text_table.h"

#include "printable/printable_text.h"

#include <QJsonArray>

#include <algorithm>

namespace {

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

TextTable::TextTable(const QStringList &headers)
{
    addRow(headers);
}

void TextTable::addRow(const QStringList &cells)
{
    QStringList shown;
    for (const QString &cell : cells)
        shown << printableText(cell);
    addPrintableRow(shown);
}

void TextTable::addPrintableRow(const QStringList &cells)
{
    QStringList shown = cells;
    // The last column pads nothing after it: only the others are cut to fit.
    for (qsizetype column = 0; column + 1 < shown.size(); ++column)
        shown[column] = fitted(shown[column]);
    m_rows.append(shown);
}

QString printableName(const QJsonValue &text, const QJsonValue &bytes)
{
    if (!bytes.isArray())
        return printableText(text.toString());
    QByteArray name;
    for (const QJsonValue &byte : bytes.toArray())
        name.append(char(byte.toInt()));
    return printableBytes(name);
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
