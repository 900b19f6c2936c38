// The rows of one folder as the phone's list view shows them, for any
// application that lists folders (a file manager's model, a picker, a tool).
//
// The rows come in the phone's order: the folder's fixed subfolders in the
// folder structure's order; at the file manager's root, the storages (the
// memory card, the MegaSIM) in partition order; then the other folders, then
// the files, each of these two groups in the phone's collation. A filter
// narrows the files only: folders are always listed.
//
// Opening a folder only reads its names, as the listing gives them. The rows
// are put in order only as far as they are asked for, a screen or more at a
// time, and a row's shown name, icons, size and date are worked out when they
// are first asked for: a folder of 100,000 entries opens at once, and reading
// every row costs no more than one sort.
//
// Built on the library's public interface only. The answers are cached as
// they are asked for, so an object is used from one thread at a time.
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <memory>

class TAMBRO_File_Filter;

class TAMBRO_ListView
{
public:
    enum Kind { Folder, Storage, File };
    // Why a storage cannot be used as usual, in the order in which the phone
    // tells it: a locked card is not said to be unformatted, and so on.
    enum StorageState { Usable, Locked, Unformatted, Invalid, WriteProtected };

    TAMBRO_ListView();
    ~TAMBRO_ListView();
    TAMBRO_ListView(const TAMBRO_ListView &) = delete;
    TAMBRO_ListView &operator=(const TAMBRO_ListView &) = delete;
    void swap(TAMBRO_ListView &other) noexcept { d.swap(other.d); }

    // Reads the folder's names; false, and the rows unchanged, when it
    // cannot be read. A user's folder whose name a fixed folder needs may be
    // renamed aside on the way, as the phone does. The filter is used at once
    // and not kept.
    bool setFolder(const QString &folder, const TAMBRO_File_Filter *filter = nullptr);
    // The folder's absolute, clean path; empty before the first setFolder.
    QString folder() const;
    // The folder's location line.
    QString title() const;
    int count() const;

    // Rows are numbered from 0 up to count() - 1; a number outside gives
    // the neutral answer (File, empty texts, -1).
    Kind kind(int row) const;
    bool isFolder(int row) const { return kind(row) != File; }
    QString path(int row) const;
    // The name on disk (a storage's: its mount folder), with the bytes that
    // are not UTF-8 shown as replacement characters.
    QString name(int row) const;
    // The name's bytes when they are not UTF-8, else empty.
    QByteArray nameBytes(int row) const;
    // The name the phone shows; a storage that cannot be used as usual says
    // so after its name, as in "Memory Card (locked)".
    QString shownName(int row) const;
    // Icon file names, for TAMBRO_Global::getIcon.
    QString bigIcon(int row) const;
    QString smallIcon(int row) const;
    // Files only (-1, empty or invalid for folders): the size in bytes and as
    // the list shows it, and the last modification (a dangling link: an
    // empty file of 1970).
    qint64 size(int row) const;
    QString sizeText(int row) const;
    QDateTime modified(int row) const;

    // The first of the states that holds for the partition (partition numbers
    // as TAMBRO_Global's); Usable for one that is not there.
    static StorageState storageState(int parti);
    // The words said after a storage's name; empty for Usable.
    static QString storageStateText(StorageState state);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
