// What the folder structure file says about one folder.
#include "folder_structure.h"

#include "TAMBRO_FixedFolder.h"
#include "core/translation.h"
#include "types/icon_names.h"

#include <ZConfig.h>

#include <QMap>

#include <algorithm>
#include <vector>

namespace {

// A group name is taken as it stands, unless it is the root or preloaded
// content, which are looked up as real folders.
std::optional<QString> groupOf(const QString &path, bool absolute)
{
    if (!absolute && !TAMBRO_FixedFolder::isPreloadFolder(path) && path != TAMBRO_FixedFolder::m_sFMRootPath)
        return path;
    return Tambro::groupOfFolder(path);
}

// The root's group for the root, else the root-relative path: no preloaded
// content here.
std::optional<QString> groupUnderRoot(const QString &path)
{
    if (path == TAMBRO_FixedFolder::m_sFMRootPath)
        return QLatin1String(Tambro::RootGroup);
    const QString relative = Tambro::relativeFolderPath(path);
    if (relative.isEmpty())
        return std::nullopt;
    return relative;
}

struct NumberedLink
{
    int number;
    QString keyWord;
};

} // namespace

namespace Tambro {

QString entryOr(const QString &group, const char *key, const QString &fallback)
{
    const QString value = folderStructure().readEntry(group, QLatin1String(key), QString());
    return value.isEmpty() ? fallback : value;
}

} // namespace Tambro

bool TAMBRO_FixedFolder::getFolder(const QString &path, FixedFolder &folder, bool absolute)
{
    const ZConfig &structure = Tambro::folderStructure();
    const std::optional<QString> found = groupOf(path, absolute);
    if (!found)
        return false;
    const QString &group = *found;
    folder.bigIcon = Tambro::entryOr(group, "b_icon", QLatin1String(Tambro::Icons::Folder.big));
    folder.smallIcon = Tambro::entryOr(group, "s_icon", QLatin1String(Tambro::Icons::Folder.small));
    folder.displayName = Tambro::translateLatin1(
        structure.readEntry(group, QStringLiteral("res_str"), QString()),
        structure.readEntry(group, QStringLiteral("dis_str"), QString()));
    if (folder.displayName.isEmpty())
        folder.displayName = group.mid(group.lastIndexOf(u'/') + 1);
    return true;
}

bool TAMBRO_FixedFolder::isFixedFolder(const QString &path)
{
    const QString relative = Tambro::relativeFolderPath(path);
    QMap<QString, QString> entries;
    return !relative.isEmpty() && Tambro::folderStructure().getGroupEntriesKeyList(relative, entries);
}

bool TAMBRO_FixedFolder::getInvLink(const QString &folder, QStringList &links)
{
    const ZConfig &structure = Tambro::folderStructure();
    const std::optional<QString> group = groupUnderRoot(folder);
    if (!group)
        return false;
    const int count = structure.readNumEntry(*group, QStringLiteral("invlink_num"), -1);
    if (count < 1)
        return false;
    // "invlink_key1" to "invlink_key<count>", found among the entries there
    // are rather than asked one by one: a broken file may give a count of
    // two thousand million. Empty ones are skipped.
    QMap<QString, QString> entries;
    structure.getGroupEntriesKeyList(*group, entries);
    std::vector<NumberedLink> found;
    const QLatin1String prefix("invlink_key");
    for (auto it = entries.cbegin(); it != entries.cend(); ++it) {
        if (!it.key().startsWith(prefix))
            continue;
        const QString number = it.key().mid(prefix.size());
        const int i = number.toInt();
        if (i >= 1 && i <= count && QString::number(i) == number && !it.value().isEmpty())
            found.push_back({i, it.value()});
    }
    std::sort(found.begin(), found.end(),
              [](const NumberedLink &a, const NumberedLink &b) { return a.number < b.number; });
    for (const NumberedLink &link : found)
        links.append(link.keyWord);
    return true;
}

bool TAMBRO_GetFixedFolderInfoByName(const QString &path, FixedFolder &folder)
{
    return TAMBRO_FixedFolder::getFolder(path, folder, true);
}
