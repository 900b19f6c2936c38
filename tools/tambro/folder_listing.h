// A folder's entries as the file manager lists them.
#pragma once

#include <QList>
#include <optional>
#include <QString>

struct ListedEntry
{
    QString name; // on disk
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
