// What the folder structure file says about one folder.
#include "folder_structure.h"
#include "preload_folders.h"

#include "TAMBRO_FixedFolder.h"
#include "core/translation.h"
#include "types/icon_names.h"

#include <ZConfig.h>

#include <optional>

namespace {

// The structure file's group for a folder: preloaded content in tag form,
// the root, a real path by its root-relative part, else the path is a group
// name already. Nothing for a real path with nothing after the root.
std::optional<QString> groupOf(const QString &path, bool absolute)
{
    if (TAMBRO_FixedFolder::isPreloadFolder(path))
        return Tambro::toPreloadTagForm(path);
    if (path == TAMBRO_FixedFolder::m_sFMRootPath)
        return QLatin1String(Tambro::RootGroup);
    if (!absolute)
        return path;
    const QString relative = Tambro::relativeFolderPath(path);
    if (relative.isEmpty())
        return std::nullopt;
    return relative;
}

QString entryOr(const QString &group, const char *key, const QString &fallback)
{
    const QString value = Tambro::folderStructure().readEntry(group, QLatin1String(key), QString());
    return value.isEmpty() ? fallback : value;
}

} // namespace

QString TAMBRO_FixedFolder::getDefaultFolder()
{
    const QString relative = Tambro::folderStructure().readEntry(
        QLatin1String(Tambro::KeyWordGroup), QStringLiteral("default"), QString());
    return Tambro::absoluteFolderPath(relative.trimmed());
}

bool TAMBRO_FixedFolder::getFolder(const QString &path, FixedFolder &folder, bool absolute)
{
    const ZConfig &structure = Tambro::folderStructure();
    const std::optional<QString> found = groupOf(path, absolute);
    if (!found)
        return false;
    const QString &group = *found;
    folder.bigIcon = entryOr(group, "b_icon", QLatin1String(Tambro::Icons::Folder.big));
    folder.smallIcon = entryOr(group, "s_icon", QLatin1String(Tambro::Icons::Folder.small));
    folder.displayName = Tambro::translateLatin1(
        structure.readEntry(group, QStringLiteral("res_str"), QString()),
        structure.readEntry(group, QStringLiteral("dis_str"), QString()));
    if (folder.displayName.isEmpty())
        folder.displayName = group.mid(group.lastIndexOf(u'/') + 1);
    return true;
}
