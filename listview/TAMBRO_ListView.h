/// \file
/// The rows of one folder as the phone's list view shows them, for any
/// application that lists folders (a file manager's model, a picker, a tool):
/// the list view component, KivTambro::ListView.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>

class TAMBRO_File_Filter;

/// The rows of one folder as the phone's list view shows them.
///
/// The rows come in the phone's order: the folder's fixed subfolders in the
/// folder structure's order; at the file manager's root, the storages (the
/// memory card, the MegaSIM) in partition order; then the other folders, then
/// the files, each of these two groups in the phone's collation. A filter
/// narrows the files only: folders are always listed.
///
/// Opening a folder only reads its names, as the listing gives them. The rows
/// are put in order only as far as they are asked for, a screen or more at a
/// time, and a row's shown name, icons, size and date are worked out when they
/// are first asked for: a folder of 100,000 entries opens at once, and reading
/// every row costs no more than one sort.
///
/// Built on the library's public interface only. The answers are cached as
/// they are asked for, so an object is used from one thread at a time.
///
/// Rows are numbered from 0 up to count() - 1; a number outside gives the
/// neutral answer that each function names. Nothing is read again until the
/// next setFolder(): a row's details are those of the first time they were
/// asked for.
class TAMBRO_ListView
{
public:
    /// What a row is.
    enum Kind {
        Folder, ///< a folder, a link to one, or a fixed subfolder
        Storage, ///< the memory card or the MegaSIM, listed at the root by its mount folder
        File ///< anything else, a dangling link too; the answer for a row outside the rows
    };
    /// Why a storage cannot be used as usual, in the order in which the phone
    /// tells it: a locked card is not said to be unformatted, and so on.
    enum StorageState {
        Usable, ///< nothing to tell; also the answer for a partition that is not there
        Locked, ///< the card is locked
        Unformatted, ///< the card is not formatted
        Invalid, ///< the card holds no file system the phone can use
        WriteProtected ///< the card can be read but not written
    };

    /// A view without a folder: no rows. Reads nothing.
    TAMBRO_ListView();
    /// Frees the rows.
    ~TAMBRO_ListView();
    /// Not copyable: a view owns its rows; swap() exchanges two views'.
    TAMBRO_ListView(const TAMBRO_ListView &) = delete;
    /// Not copyable: a view owns its rows; swap() exchanges two views'.
    TAMBRO_ListView &operator=(const TAMBRO_ListView &) = delete;
    /// Exchanges the folders and rows of two views; reads nothing, never fails.
    void swap(TAMBRO_ListView &other) noexcept { d.swap(other.d); }

    /// Reads the folder's names; false, and the rows unchanged, when it
    /// cannot be read. A user's folder whose name a fixed folder needs may be
    /// renamed aside on the way, as the phone does. The filter is used at once
    /// and not kept.
    ///
    /// The folder is made absolute (from the current folder) and clean first.
    /// Its fixed subfolders come from TAMBRO_FixedFolder::getFixedFolderList,
    /// asked before the folder is read, so a rename may happen even when it
    /// then cannot be; at the root the partition table is asked too (built on
    /// first use). The listing is read once: every entry but "." and "..",
    /// hidden ones too, with a look at the disk only for a link and an entry of
    /// unknown type; a fixed subfolder of the folder is listed once. The filter
    /// is asked about every file (a ring-tone filter asks the MIME registry
    /// about preloaded ones).
    bool setFolder(const QString &folder, const TAMBRO_File_Filter *filter = nullptr);
    /// The folder's absolute, clean path; empty before the first setFolder.
    QString folder() const;
    /// The folder's location line.
    /// TAMBRO_Global::getDisplayPathName, worked out at every call: empty for
    /// a folder outside the root, the preloaded content and the storages, and
    /// before the first setFolder().
    QString title() const;
    /// The number of rows; 0 before the first setFolder().
    int count() const;

    /// The row's kind; File for a row outside the rows. Like every question
    /// about a row, it puts the rows in order as far as that row, at least a
    /// screenful more at a time.
    Kind kind(int row) const;
    /// True for a folder and a storage; false for a file and a row outside.
    bool isFolder(int row) const { return kind(row) != File; }
    /// The row's absolute path: the folder's followed by the name, or a fixed
    /// subfolder's or a storage's own, which may lie elsewhere (preloaded
    /// content, a mount folder). Empty for a row outside. A name that is not
    /// UTF-8 leaves replacement characters in the path: its bytes are
    /// nameBytes().
    QString path(int row) const;
    /// The name on disk (a storage's: its mount folder), with the bytes that
    /// are not UTF-8 shown as replacement characters.
    /// Empty for a row outside.
    QString name(int row) const;
    /// The name's bytes when they are not UTF-8, else empty.
    /// Empty for a row outside.
    QByteArray nameBytes(int row) const;
    /// The name the phone shows; a storage that cannot be used as usual says
    /// so after its name, as in "Memory Card (locked)".
    /// A folder's as TAMBRO_Global::getFolderRes gives it (a fixed folder's
    /// translated name, a storage's short name), a file's as
    /// TAMBRO_Global::getShortName, translated for preloaded content. Empty
    /// for a row outside. The first question about a row's shown name, icons,
    /// size or date works all of them out: for a file two looks at the disk
    /// and up to eight questions to the MIME registry (four per icon size).
    QString shownName(int row) const;
    /// Icon file names, for TAMBRO_Global::getIcon.
    /// The thumbnail-size one: a file's by TAMBRO_Global::getFileIconByType, a
    /// folder's by TAMBRO_Global::getFolderRes without the phone icon. Empty
    /// for a row outside.
    QString bigIcon(int row) const;
    /// The list-size icon file name, found as bigIcon() is; empty for a row
    /// outside.
    QString smallIcon(int row) const;
    /// Files only: a file's size in bytes, that of what a link leads to (a
    /// dangling link is an empty file of 1970, see modified()); -1 for a
    /// folder, a storage and a row outside.
    qint64 size(int row) const;
    /// The size as the list shows it, TAMBRO_Global::getDetailViewSizeStr
    /// ("2.0 KB", "0 B" for a dangling link); empty for a folder, a storage
    /// and a row outside.
    QString sizeText(int row) const;
    /// A file's last modification, to the second, in local time; that of
    /// what a link leads to, the start of 1970 (UTC) for a dangling link. A
    /// folder and a storage have no date of their own and also get the start
    /// of 1970, a valid date; only a row outside gives an invalid one.
    QDateTime modified(int row) const;

    /// The first of the states that holds for the partition (partition numbers
    /// as TAMBRO_Global's); Usable for one that is not there.
    /// Asked of the partition table each time, which is built on first use and
    /// rescanned when TAMBRO_Global::initMemFlag is cleared.
    static StorageState storageState(int parti);
    /// The words said after a storage's name; empty for Usable.
    /// "locked", "unformatted", "invalid" or "write-protected", translated in
    /// the TAMBRO_ListView context.
    static QString storageStateText(StorageState state);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
