// A plain-text table whose columns are padded to their widest cell.
#pragma once

#include <QString>
#include <QStringList>
#include <QList>

class TextTable
{
public:
    explicit TextTable(const QStringList &headers);

    void addRow(const QStringList &cells);
    QString toString() const;

private:
    QList<QStringList> m_rows;
};
