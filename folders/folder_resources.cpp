// How a listing shows a folder: its icons, its name, and the folder above it.
#include "partition_folders.h"

#include "TAMBRO_FixedFolder.h"
#include "TAMBRO_Global.h"
#include "core/partition_table.h"
#include "types/icon_names.h"

#include <QDir>
#include <QFileInfo>

namespace Icons = Tambro::Icons;

namespace {

QString lastComponent(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

void setIcons(_TAMBRO_FOLDER_RES &res, const Tambro::IconPair &icons)
{
    res.bigIcon = QLatin1String(icons.big);
    res.smallIcon = QLatin1String(icons.small);
}

// A storage's folder: its mount folder by the storage's short name, any other
// by its last component, with the storage's icons.
void setStorageFolderRes(const QString &path, int parti, _TAMBRO_FOLDER_RES &res)
{
    res.displayName = path == TAMBRO_Global::getPartiName(parti) ? TAMBRO_Global::getPartiShortName(parti)
                                                                  : lastComponent(path);
    switch (TAMBRO_Global::getDeviceCardType(parti)) {
    case Tambro::MemoryCard:
        setIcons(res, Icons::MemoryCard);
        break;
    case Tambro::MegaSim:
        setIcons(res, Icons::SimCard);
        break;
    default:
        break; // the phone memory's folders keep the icons the caller chose
    }
}

} // namespace

void TAMBRO_Global::getFolderRes(const QString &path, _TAMBRO_FOLDER_RES &res, bool phoneIcon)
{
    FixedFolder fixed;
    if (TAMBRO_FixedFolder::getFolder(path, fixed, true)) {
        res.displayName = fixed.displayName;
        // The phone memory's small picture stands for both sizes.
        res.bigIcon = phoneIcon ? QLatin1String(Icons::PhoneMemory) : fixed.bigIcon;
        res.smallIcon = phoneIcon ? QLatin1String(Icons::PhoneMemory) : fixed.smallIcon;
        return;
    }
    const int parti = Tambro::firstPartition(
        [&](const QString &mountFolder) { return !mountFolder.isEmpty() && path.startsWith(mountFolder); });
    if (parti) {
        setStorageFolderRes(path, parti, res);
        return;
    }
    res.displayName = lastComponent(path);
    setIcons(res, Icons::Folder);
}

void TAMBRO_Global::getFolderParent(const QString &path, QString &parentPath, QString &parentName)
{
    if (TAMBRO_FixedFolder::getPreloadFolderParent(path, parentPath, parentName))
        return;
    if (isPartiName(path)) {
        parentPath = TAMBRO_FixedFolder::m_sFMRootPath; // the storages hang under the root
    } else {
        QDir folder(path);
        parentPath = folder.exists() && folder.cd(QStringLiteral("..")) ? folder.absolutePath()
                                                                       : TAMBRO_FixedFolder::m_sFMRootPath;
    }
    _TAMBRO_FOLDER_RES parent;
    getFolderRes(parentPath, parent, true);
    parentName = parent.displayName;
}

QString TAMBRO_Global::getShortName(const QString &path)
{
    if (QFileInfo(path).isDir()) {
        FixedFolder fixed;
        if (TAMBRO_FixedFolder::getFolder(path, fixed, true))
            return fixed.displayName;
        if (const int parti = Tambro::firstPartition([&](const QString &mountFolder) { return mountFolder == path; }))
            return getPartiShortName(parti);
    }
    return lastComponent(path);
}
