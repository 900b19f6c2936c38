#include "folder_listing.h"

#include "folder_reader.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QDir>

#include <algorithm>

namespace {

QByteArray bytesUnlessText(const DiskEntry &entry)
{
    return entry.nameIsText() ? QByteArray() : entry.nameBytes;
}

// Fixed folders carry their own icons and names. Any other folder gets the
// generic ones, which the structure gives a folder it does not name: asked
// by the path as a name when the folder lies outside the root.
ListedEntry folderEntry(const QString &path, const DiskEntry &entry)
{
    FixedFolder folder;
    if (!TAMBRO_FixedFolder::getFolder(path, folder, true))
        TAMBRO_FixedFolder::getFolder(path, folder, false);
    return {entry.name, bytesUnlessText(entry), folder.displayName, true, folder.bigIcon,
            folder.smallIcon};
}

ListedEntry fileEntry(const QString &path, const DiskEntry &entry)
{
    QString shownAs = entry.name;
    TAMBRO_FixedFolder::trPreloadFile(path, shownAs, true);
    return {entry.name, bytesUnlessText(entry), shownAs, false,
            TAMBRO_Global::getFileIconByType(path, true),
            TAMBRO_Global::getFileIconByType(path, false)};
}

void sortByName(QList<ListedEntry> &entries)
{
    std::stable_sort(entries.begin(), entries.end(), [](const ListedEntry &a, const ListedEntry &b) {
        return TAMBRO_Global::compareString(a.name, b.name) < 0;
    });
}

QString titleOf(const QString &folder)
{
    FixedFolder fixed;
    if (TAMBRO_FixedFolder::getFolder(folder, fixed, true))
        return fixed.displayName;
    return QFileInfo(folder).fileName();
}

} // namespace

std::optional<FolderListing> listFolder(const QString &folder)
{
    const std::optional<QList<DiskEntry>> entries = readFolder(folder);
    if (!entries)
        return std::nullopt;
    const QString absolute = QDir::cleanPath(QDir(folder).absolutePath());
    QList<ListedEntry> folders;
    QList<ListedEntry> files;
    for (const DiskEntry &entry : *entries) {
        const QString path = QDir(absolute).filePath(entry.name);
        if (entry.isFolder)
            folders.append(folderEntry(path, entry));
        else
            files.append(fileEntry(path, entry));
    }
    sortByName(folders);
    sortByName(files);
    return FolderListing{titleOf(absolute), folders + files};
}
