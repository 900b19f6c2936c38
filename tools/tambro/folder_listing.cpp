#include "folder_listing.h"

#include "folder_reader.h"

#include <TAMBRO_File_Filter.h>
#include <TAMBRO_FixedFolder.h>
#include <TAMBRO_Global.h>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QSet>

#include <algorithm>

namespace {

QByteArray bytesUnlessText(const DiskEntry &entry)
{
    return entry.nameIsText() ? QByteArray() : entry.nameBytes;
}

// The library gives every folder its icons and name; the phone memory's
// folders outside the fixed structure keep the generic icons set here.
ListedEntry folderEntry(const QString &path, const QString &name, ListedEntry::Kind kind)
{
    _TAMBRO_FOLDER_RES res;
    res.bigIcon = QStringLiteral("fm_folder_thb.gif");
    res.smallIcon = QStringLiteral("fm_folder_small.gif");
    TAMBRO_Global::getFolderRes(path, res, false);
    ListedEntry entry;
    entry.name = name;
    entry.shownAs = res.displayName;
    entry.kind = kind;
    entry.bigIcon = res.bigIcon;
    entry.smallIcon = res.smallIcon;
    return entry;
}

ListedEntry fileEntry(const QString &path, const DiskEntry &entry)
{
    QString shownAs = TAMBRO_Global::getShortName(path);
    TAMBRO_FixedFolder::trPreloadFile(path, shownAs, true);
    return {entry.name,
            bytesUnlessText(entry),
            shownAs,
            ListedEntry::File,
            TAMBRO_Global::getFileIconByType(path, true),
            TAMBRO_Global::getFileIconByType(path, false),
            entry.size,
            TAMBRO_Global::getDetailViewSizeStr(double(entry.size)),
            TAMBRO_Global::convertDateTime(QDateTime::fromSecsSinceEpoch(entry.modified))};
}

void sortByName(QList<ListedEntry> &entries)
{
    std::stable_sort(entries.begin(), entries.end(), [](const ListedEntry &a, const ListedEntry &b) {
        return TAMBRO_Global::compareString(a.name, b.name) < 0;
    });
}

// The card and the MegaSIM, which the phone shows under the root.
QList<ListedEntry> storages()
{
    QList<ListedEntry> entries;
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti) {
        if (TAMBRO_Global::isCards(parti)) {
            const QString path = TAMBRO_Global::getPartiName(parti);
            entries << folderEntry(path, path, ListedEntry::Storage);
        }
    }
    return entries;
}

} // namespace

QStringList fixedSubfolders(const QString &folder)
{
    QStringList paths;
    if (const QList<FixedFolder> *list = TAMBRO_FixedFolder::getFixedFolderList(folder)) {
        for (const FixedFolder &fixed : *list)
            paths << fixed.absolutePath;
    }
    return paths;
}

std::optional<FolderListing> listFolder(const QString &folder, const TAMBRO_File_Filter *filter)
{
    const QString absolute = QDir::cleanPath(QDir(folder).absolutePath());
    // Before the folder is read: a user's folder may be renamed aside first.
    const QStringList fixedPaths = fixedSubfolders(absolute);
    const std::optional<QList<DiskEntry>> entries = readFolder(absolute);
    if (!entries)
        return std::nullopt;
    QList<ListedEntry> fixed;
    for (const QString &path : fixedPaths)
        fixed << folderEntry(path, QFileInfo(path).fileName(), ListedEntry::Folder);
    const QSet<QString> shownAlready(fixedPaths.cbegin(), fixedPaths.cend());
    QList<ListedEntry> folders;
    QList<ListedEntry> files;
    for (const DiskEntry &entry : *entries) {
        const QString path = QDir(absolute).filePath(entry.name);
        if (shownAlready.contains(path))
            continue;
        if (entry.isFolder) {
            folders << folderEntry(path, entry.name, ListedEntry::Folder);
            folders.last().nameBytes = bytesUnlessText(entry);
        } else if (!filter || filter->match(path)) {
            files << fileEntry(path, entry);
        }
    }
    sortByName(folders);
    sortByName(files);
    const QList<ListedEntry> atRoot = absolute == TAMBRO_FixedFolder::m_sFMRootPath ? storages() : QList<ListedEntry>();
    return FolderListing{TAMBRO_Global::getDisplayPathName(absolute), fixed + atRoot + folders + files};
}
