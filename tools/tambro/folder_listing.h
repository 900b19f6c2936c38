// A folder's entries as the file manager lists them.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

struct ListedEntry
{
    QString name; // on disk; bytes that are not UTF-8 show as replacement characters
    QByteArray nameBytes; // the name's bytes when they are not UTF-8, else empty
    QString shownAs; // the display name
    bool isFolder = false;
    QString bigIcon;
    QString smallIcon;
};

struct FolderListing
{
    QString title; // the folder's display name
    QList<ListedEntry> entries; // folders first, then files, each sorted by name
};

// Nothing when the folder cannot be read.
std::optional<FolderListing> listFolder(const QString &folder);
