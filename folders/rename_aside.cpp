#include "rename_aside.h"

#include <QDir>
#include <QFileInfo>

#include <sys/stat.h>

namespace Tambro {

namespace {

// A display name from the structure file is no path: one that would reach
// out of the folder (or be the folder itself) moves nothing.
bool isPlainName(const QString &name)
{
    return !name.isEmpty() && name != u"." && name != u".." && !name.contains(u'/');
}

bool isFolder(const QString &path)
{
    return QFileInfo(path).isDir();
}

// Two names for one folder, as on a file system that ignores case.
bool sameFolder(const QString &a, const QString &b)
{
    struct stat first;
    struct stat second;
    return ::stat(QFile::encodeName(a).constData(), &first) == 0
        && ::stat(QFile::encodeName(b).constData(), &second) == 0 && first.st_dev == second.st_dev
        && first.st_ino == second.st_ino;
}

} // namespace

void renameAsideFor(const QString &fixedFolderPath, const QString &displayName)
{
    const QString named = fixedFolderPath.left(fixedFolderPath.lastIndexOf(u'/') + 1) + displayName;
    if (named == fixedFolderPath || !isPlainName(displayName) || !isFolder(named)
        || sameFolder(named, fixedFolderPath))
        return;
    int number = 1;
    while (isFolder(named + u'.' + QString::number(number)))
        ++number;
    // QDir::rename never replaces: a file that holds the new name, or a
    // storage that cannot be written, leaves the folder where it is.
    QDir().rename(named, named + u'.' + QString::number(number));
}

} // namespace Tambro
