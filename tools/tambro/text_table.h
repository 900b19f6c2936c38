// A plain-text table whose columns are padded to their widest cell, up to a
// cap: a longer cell is cut in its middle, so that one long path cannot
// widen every row of a large table; the last column, which pads nothing, is
// shown whole. Cells are shown as printableText() shows them.
// Scripts that need every character read the commands' --json instead.
#pragma once

#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>

class TextTable
{
public:
    static constexpr qsizetype MaxColumnWidth = 64;

    explicit TextTable(const QStringList &headers);

    void addRow(const QStringList &cells);
    // Cells already made printable, such as a name shown from its bytes.
    void addPrintableRow(const QStringList &cells);
    QString toString() const;

private:
    QList<QStringList> m_rows;
};

// A name as a table shows it: from its bytes (as jsonBytes() gives them) when
// there are any, for a name that is not UTF-8, else from its text.
QString printableName(const QJsonValue &text, const QJsonValue &bytes);
