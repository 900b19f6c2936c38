// The location line a listing shows above a folder, and a folder's depth.
#include "structurefile/folder_structure_file.h"

#include "TAMBRO_FixedFolder.h"
#include "TAMBRO_Global.h"

namespace {

QString rootDisplayName()
{
    FixedFolder root;
    TAMBRO_FixedFolder::getFolder(TAMBRO_FixedFolder::m_sFMRootPath, root, true);
    return root.displayName;
}

// A folder on the card or the MegaSIM: the storage's short name, then the
// path below its mount folder as it stands. Empty for any other folder.
QString storageLine(const QString &path, const QString &rootName)
{
    int parti = TAMBRO_Global::isPartiName(path);
    if (parti && TAMBRO_Global::isCards(parti))
        return rootName + u'/' + TAMBRO_Global::getPartiShortName(parti);
    parti = TAMBRO_Global::isPartiSubFolder(path);
    if (parti > 0 && TAMBRO_Global::isCards(parti)) {
        const QString mountFolder = TAMBRO_Global::getPartiName(parti);
        return rootName + u'/' + TAMBRO_Global::getPartiShortName(parti)
            + path.mid(path.indexOf(mountFolder) + mountFolder.size());
    }
    return QStringLiteral("");
}

// Each level's display name below the prefix, up to the first without one.
// The record is reused from level to level, as the phone's list view does.
QString levelNames(const QString &path, qsizetype prefixLength)
{
    const QString levels = path.endsWith(u'/') ? path : path + u'/';
    QString line;
    FixedFolder level;
    for (qsizetype slash = levels.indexOf(u'/', prefixLength + 1); slash >= 0;
         slash = levels.indexOf(u'/', slash + 1)) {
        TAMBRO_FixedFolder::getFolder(levels.left(slash), level, true);
        if (level.displayName.isEmpty())
            break;
        line += u'/' + level.displayName;
    }
    return line;
}

} // namespace

QString TAMBRO_Global::getDisplayPathName(const QString &path)
{
    if (path.isEmpty())
        return QString();
    const QString rootName = rootDisplayName();
    const QString &root = TAMBRO_FixedFolder::m_sFMRootPath;
    if (path.startsWith(root))
        return rootName + levelNames(path, root.size());
    if (path.startsWith(Tambro::PreloadRoot))
        return rootName + levelNames(path, Tambro::PreloadRoot.size());
    return storageLine(path, rootName);
}

int TAMBRO_Global::getFolderLevel(const QString &path)
{
    if (!path.contains(u'/'))
        return 0;
    return int(path.count(u'/')) - (path.endsWith(u'/') ? 1 : 0);
}
