#include "folder_listing.h"

#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace {

// Fixed folders carry their own icons and names; any other folder gets the
// generic ones.
ListedEntry folderEntry(const QFileInfo &info)
{
    FixedFolder folder;
    if (!TAMBRO_FixedFolder::getFolder(info.filePath(), folder, true))
        folder = {QStringLiteral("fm_folder_thb.gif"), QStringLiteral("fm_folder_small.gif"),
                  info.fileName(), QString()};
    return {info.fileName(), folder.displayName, true, folder.bigIcon, folder.smallIcon};
}

ListedEntry fileEntry(const QFileInfo &info)
{
    QString shownAs = info.fileName();
    TAMBRO_FixedFolder::trPreloadFile(info.filePath(), shownAs, true);
    return {info.fileName(), shownAs, false,
            TAMBRO_Global::getFileIconByType(info.filePath(), true),
            TAMBRO_Global::getFileIconByType(info.filePath(), false)};
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
    const QDir dir(folder);
    if (!QFileInfo(folder).isDir() || !dir.isReadable())
        return std::nullopt;
    QList<ListedEntry> folders;
    QList<ListedEntry> files;
    const QFileInfoList entries =
        dir.entryInfoList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo &info : entries) {
        if (info.isDir())
            folders.append(folderEntry(info));
        else
            files.append(fileEntry(info));
    }
    sortByName(folders);
    sortByName(files);
    return FolderListing{titleOf(QDir::cleanPath(dir.absolutePath())), folders + files};
}
