// A plain-text table whose columns are padded to their widest cell, up to a
// cap: a longer cell is cut in its middle, so that one long path cannot
// widen every row of a large table; the last column, which pads nothing, is
// shown whole. Control characters are shown escaped.
// Scripts that need every character read the commands' --json instead.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class TextTable
{
public:
    static constexpr qsizetype MaxColumnWidth = 64;

    explicit TextTable(const QStringList &headers);

    void addRow(const QStringList &cells);
    QString toString() const;

private:
    QList<QStringList> m_rows;
};

// The text with control characters and backslashes escaped as in C ("\n",
// "\x1b", "\\"), so that a file name cannot break a line or move the cursor.
QString escapedForTerminal(const QString &text);
