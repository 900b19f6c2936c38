// One folder as the phone's list view shows it (TAMBRO_ListView), presented
// to Qt's views: a row a list view row, the name with its icon, and the size.
// The list view reads only the folder's names and works a row out when a
// view first asks for it: a folder of 100,000 entries opens at once.
#pragma once

#include <TAMBRO_ListView.h>

#include <QAbstractItemModel>

class TAMBRO_File_Filter;

class FolderModel : public QAbstractItemModel
{
    Q_OBJECT

public:
    enum Column { NameColumn, SizeColumn, ColumnCount };
    enum Role { PathRole = Qt::UserRole, IsFolderRole, SizeRole };

    explicit FolderModel(QObject *parent = nullptr);

    // False, and nothing changed, when the folder cannot be read. The
    // filter, when given, chooses the files; folders are always listed.
    bool setFolder(const QString &folder, const TAMBRO_File_Filter *filter = nullptr);
    QString folder() const { return m_rows.folder(); }
    const TAMBRO_ListView &rows() const { return m_rows; }
    // Whether rows show their big (thumbnail) icons, for a grid.
    void setBigIcons(bool big);

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    TAMBRO_ListView m_rows;
    bool m_bigIcons = false;
};
