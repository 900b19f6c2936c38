#include "folder_model.h"

#include <TAMBRO_Global.h>

FolderModel::FolderModel(QObject *parent) : QAbstractItemModel(parent) {}

bool FolderModel::setFolder(const QString &folder, const TAMBRO_File_Filter *filter)
{
    TAMBRO_ListView rows;
    if (!rows.setFolder(folder, filter))
        return false;
    beginResetModel();
    m_rows.swap(rows);
    endResetModel();
    return true;
}

void FolderModel::setBigIcons(bool big)
{
    m_bigIcons = big;
    if (m_rows.count())
        emit dataChanged(index(0, NameColumn), index(rowCount() - 1, NameColumn), {Qt::DecorationRole});
}

QModelIndex FolderModel::index(int row, int column, const QModelIndex &parent) const
{
    if (parent.isValid() || row < 0 || row >= rowCount() || column < 0 || column >= ColumnCount)
        return {};
    return createIndex(row, column);
}

QModelIndex FolderModel::parent(const QModelIndex &) const
{
    return {};
}

int FolderModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_rows.count();
}

int FolderModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant FolderModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid())
        return {};
    const int row = index.row();
    switch (role) {
    case PathRole:
        return m_rows.path(row);
    case IsFolderRole:
        return m_rows.isFolder(row);
    case SizeRole:
        return m_rows.size(row);
    case Qt::DisplayRole:
        return index.column() == NameColumn ? m_rows.shownName(row) : m_rows.sizeText(row);
    case Qt::DecorationRole:
        if (index.column() != NameColumn)
            return {};
        return TAMBRO_Global::getIcon(m_bigIcons ? m_rows.bigIcon(row) : m_rows.smallIcon(row));
    case Qt::TextAlignmentRole:
        return index.column() == SizeColumn ? QVariant(Qt::AlignRight | Qt::AlignVCenter) : QVariant();
    }
    return {};
}
