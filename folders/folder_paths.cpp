// The root of the fixed folder tree, and paths relative to it.
#include "folder_structure.h"

#include "TAMBRO_FixedFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <unistd.h>

namespace {

void makeFolder(const QString &path)
{
    if (QFileInfo(path).isDir())
        return;
    // Only a folder made here is handed over: a file of that name keeps its owner.
    if (QDir().mkdir(path))
        (void)::chown(QFile::encodeName(path).constData(), KivPaths::UserFilesOwner,
                      KivPaths::UserFilesGroup);
}

} // namespace

namespace Tambro {

QString rootPathFromEnvironment()
{
    QString root = qEnvironmentVariable("TAMBRO_DATA_PATH").trimmed();
    while (root.endsWith(u'/'))
        root.chop(1);
    return root;
}

QString relativeFolderPath(const QString &absolutePath)
{
    const QString &root = TAMBRO_FixedFolder::m_sFMRootPath;
    if (absolutePath.indexOf(root) < 0)
        return QString();
    return absolutePath.mid(root.size());
}

bool staysInside(const QString &relativePath)
{
    if (!relativePath.startsWith(u'/'))
        return false;
    int depth = 0;
    for (const QStringView part : QStringView(relativePath).split(u'/', Qt::SkipEmptyParts)) {
        if (part == u"..")
            --depth;
        else if (part != u".")
            ++depth;
        if (depth < 0)
            return false;
    }
    return true;
}

std::optional<QString> fixedFolderPath(const QString &relativePath)
{
    if (!relativePath.isEmpty() && !staysInside(relativePath))
        return std::nullopt;
    return TAMBRO_FixedFolder::m_sFMRootPath + relativePath;
}

void makeFolderPath(const QString &path)
{
    // The root's own components are taken as given; the root itself is made
    // when the first "/" after it is reached.
    for (qsizetype slash = path.indexOf(u'/', TAMBRO_FixedFolder::m_sFMRootPath.size()); slash >= 0;
         slash = path.indexOf(u'/', slash + 1))
        makeFolder(path.left(slash));
    makeFolder(path);
}

std::optional<QString> groupOfFolder(const QString &path)
{
    if (TAMBRO_FixedFolder::isPreloadFolder(path))
        return toPreloadTagForm(path);
    if (path == TAMBRO_FixedFolder::m_sFMRootPath)
        return QLatin1String(RootGroup);
    const QString relative = relativeFolderPath(path);
    if (relative.isEmpty())
        return std::nullopt;
    return relative;
}

} // namespace Tambro
