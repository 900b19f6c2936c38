// A folder's entries as the phone's list view shows them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

struct ListedEntry
{
    enum Kind { Folder, Storage, File };

    QString name; // on disk (a storage's mount folder); bytes that are not UTF-8 show as replacement characters
    QByteArray nameBytes; // the name's bytes when they are not UTF-8, else empty
    QString shownAs; // the display name
    Kind kind = File;
    QString bigIcon;
    QString smallIcon;
    // Files only: the size in bytes and as the list shows it, and the modification date.
    qint64 size = -1;
    QString sizeText;
    QString modified;
};

struct FolderListing
{
    QString title; // the folder's location line
    // The fixed subfolders in their order; at the root, the card and the
    // MegaSIM; then the other folders, then the files, each sorted by name.
    QList<ListedEntry> entries;
};

class TAMBRO_File_Filter;

// Nothing when the folder cannot be read. With a filter, only the files it
// passes (asked by path) are listed; folders always are.
std::optional<FolderListing> listFolder(const QString &folder, const TAMBRO_File_Filter *filter = nullptr);

// The folder's fixed subfolders' paths, in their order. The library may
// rename a user's folder aside on the way.
QStringList fixedSubfolders(const QString &folder);
