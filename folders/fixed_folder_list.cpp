// A fixed folder's fixed subfolders, in the order the structure file gives.
#include "folder_structure.h"
#include "rename_aside.h"

#include "TAMBRO_FixedFolder.h"

#include <ZConfig.h>

#include <QFileInfo>

#include <algorithm>

namespace {

// Refilled by every call, as callers of the phone's file manager expect;
// never freed.
QList<FixedFolder> &folderList()
{
    static auto *const list = new QList<FixedFolder>;
    return *list;
}

// The subfolder named by a "subN" entry, with its absolutePath and its
// display name freed among the folders where the listing shows it; nothing
// for a folder outside the root.
std::optional<FixedFolder> fixedSubfolder(const QString &entry)
{
    const std::optional<QString> path = Tambro::fixedFolderPath(entry);
    if (!path)
        return std::nullopt;
    FixedFolder record;
    TAMBRO_FixedFolder::getFolder(entry, record, false);
    record.absolutePath = *path;
    Tambro::renameAsideFor(record.absolutePath, record.displayName);
    return record;
}

// Preloaded content lies under the preload root and is shown inside the
// folder that lists it: an entry that leads out of them, or whose content is
// not on disk, names nothing.
std::optional<FixedFolder> preloadedSubfolder(const QString &folder, const QString &entry)
{
    const QString shownPath = entry.mid(Tambro::PreloadTag.size());
    FixedFolder record;
    record.absolutePath = Tambro::fromPreloadTagForm(entry);
    if (!Tambro::staysInside(shownPath) || !QFileInfo(record.absolutePath).isDir())
        return std::nullopt;
    TAMBRO_FixedFolder::getFolder(entry, record, false);
    Tambro::renameAsideFor(folder + shownPath, record.displayName);
    return record;
}

std::optional<FixedFolder> subfolder(const QString &folder, const QString &entry)
{
    if (TAMBRO_FixedFolder::hasPreloadFolderTag(entry))
        return preloadedSubfolder(folder, entry);
    return fixedSubfolder(entry);
}

// The list, or nothing when it would be null or empty.
const QList<FixedFolder> *nonEmptyList(const QString &folder)
{
    const QList<FixedFolder> *list = TAMBRO_FixedFolder::getFixedFolderList(folder);
    return list && !list->isEmpty() ? list : nullptr;
}

} // namespace

const QList<FixedFolder> *TAMBRO_FixedFolder::getFixedFolderList(const QString &folder)
{
    const ZConfig &structure = Tambro::folderStructure();
    const std::optional<QString> group = Tambro::groupOfFolder(folder);
    if (!group)
        return nullptr;
    const int count = structure.readNumEntry(*group, QStringLiteral("sub_num"), -1);
    if (count < 1)
        return nullptr;
    QList<FixedFolder> &list = folderList();
    list.clear();
    for (int i = 1; i <= count; ++i) {
        // The first missing entry ends the list, whatever follows it.
        const QString entry = structure.readEntry(*group, QStringLiteral("sub%1").arg(i), QString());
        if (entry.isEmpty())
            break;
        if (std::optional<FixedFolder> record = subfolder(folder, entry))
            list.append(*record);
    }
    return &list;
}

bool TAMBRO_FixedFolder::isFixedFolderName(const QString &folder, const QString &name)
{
    const QList<FixedFolder> *list = nonEmptyList(folder);
    const QString shown = name.trimmed();
    return list && std::any_of(list->cbegin(), list->cend(), [&](const FixedFolder &fixed) {
               return fixed.displayName == shown;
           });
}

bool TAMBRO_FixedFolder::isFixedFolderNoCaseSensitive(const QString &folder, const QString &name)
{
    const QList<FixedFolder> *list = nonEmptyList(folder);
    const QString path = (folder + u'/' + name).trimmed().toUpper();
    return list && std::any_of(list->cbegin(), list->cend(), [&](const FixedFolder &fixed) {
               return fixed.absolutePath.toUpper() == path;
           });
}
