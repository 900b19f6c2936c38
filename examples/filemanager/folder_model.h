// One folder's entries as the phone lists them: at the root its fixed
// folders in their order and the storages; then the other folders, then the
// files, each group sorted by the phone's collation. Reading a folder only
// lists its names. They are put in order only as far as a view asks, a
// screen or more at a time, and a row's icons, shown name and size are worked
// out when a view first asks for them: a folder of 100,000 entries opens at
// once.
#pragma once

#include <QAbstractItemModel>
#include <QPixmap>

#include <optional>
#include <vector>

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
    QString folder() const { return m_folder; }
    // Whether rows show their big (thumbnail) icons, for a grid.
    void setBigIcons(bool big);
    QString path(int row) const { return rowAt(row).path; }
    bool isFolder(int row) const { return rowAt(row).isFolder; }
    qint64 fileSize(int row) const;

    QModelIndex index(int row, int column, const QModelIndex &parent = {}) const override;
    QModelIndex parent(const QModelIndex &child) const override;
    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;

private:
    struct Shown
    {
        QString name;
        QString sizeText;
        QPixmap smallIcon;
        QPixmap bigIcon;
        qint64 size = 0;
    };
    struct Row
    {
        QString path;
        QString name; // on disk: what the rows are sorted by
        bool isFolder = false;
        bool isStorage = false;
        std::optional<Shown> shown;
    };
    // Rows [begin, end) of one kind, in order up to ordered.
    struct Group
    {
        size_t begin = 0;
        size_t end = 0;
        size_t ordered = 0;
    };

    // The row, after the rows of its group up to it are in order.
    Row &rowAt(int row) const;
    void orderUpTo(Group &group, size_t row) const;

    const Shown &shown(Row &row) const;
    Shown folderShown(const Row &row) const;
    Shown fileShown(const Row &row) const;

    QString m_folder;
    // Ordering and working out rows are a cache, filled when a view reads.
    mutable std::vector<Row> m_rows;
    mutable Group m_groups[2]; // the folders, the files
    bool m_bigIcons = false;
};
