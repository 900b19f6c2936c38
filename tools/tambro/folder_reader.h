// A folder's entries as they are on disk, whatever bytes their names hold:
// a file manager never hides a file.
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

struct DiskEntry
{
    QByteArray nameBytes;
    QString name; // bytes that are not UTF-8 show as replacement characters
    bool isFolder = false; // a folder or a link to one
    qint64 size = 0; // of what a link leads to
    qint64 modified = 0; // seconds since the epoch

    // Whether name holds exactly the bytes, so that a report may leave them out.
    bool nameIsText() const { return name.toUtf8() == nameBytes; }
};

// In the order the file system gives; nothing when the folder cannot be read.
std::optional<QList<DiskEntry>> readFolder(const QString &folder);

// The folders in the tree at path that cannot be read, by their paths' bytes:
// what a size or a count of the tree leaves out. Links are not followed,
// below path itself, and a tree deeper than any phone's is not gone into.
QList<QByteArray> unreadableFolders(const QString &path);
