#include "text_table.h"

#include <algorithm>

TextTable::TextTable(const QStringList &headers)
{
    m_rows.append(headers);
}

void TextTable::addRow(const QStringList &cells)
{
    m_rows.append(cells);
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
        text += padded.join(QStringLiteral("  ")).trimmed() + QLatin1Char('\n');
    }
    return text;
}
