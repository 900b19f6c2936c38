// Space of a storage and usage of a folder tree, asked of the file system on
// every call.
#include "TAMBRO_Global.h"
#include "TAMBRO_FixedFolder.h"

#include "folder_walk.h"

#include <QFile>
#include <QFileInfo>

#include <sys/stat.h>
#include <sys/vfs.h>

bool TAMBRO_Global::getDiskSize(const QString &path, double &available, double &total)
{
    available = 0.0;
    total = 0.0;
    // Preloaded folders live on the phone memory.
    const QString &measured = TAMBRO_FixedFolder::isPreloadFolder(path) ? TAMBRO_FixedFolder::m_sFMRootPath : path;
    struct statfs space;
    if (statfs(QFile::encodeName(measured).constData(), &space) == -1)
        return false;
    // The phone's file system reports a signed 32-bit block size and unsigned
    // 32-bit block counts; the answers keep those widths.
    const double blockSize = qint32(space.f_bsize);
    available = blockSize * quint32(space.f_bavail);
    total = blockSize * quint32(space.f_blocks);
    return true;
}

quint64 TAMBRO_Global::getSize(const QString &path)
{
    const QFileInfo info(path);
    if (info.isFile())
        return quint32(info.size());
    if (!info.isDir())
        return 0;
    return Tambro::treeSize(Tambro::openFolder(path), Tambro::folderLevel(path));
}

TAMBRO_ITEM_COUNT TAMBRO_Global::getNum(const QString &path, bool recursive)
{
    // A file or a missing path cannot be opened as a folder: zero counts.
    return Tambro::treeCount(Tambro::openFolder(path), Tambro::folderLevel(path), recursive);
}

bool TAMBRO_Global::isReadOnly(const QString &path)
{
    struct stat status;
    if (stat(QFile::encodeName(path).constData(), &status) != 0)
        return false;
    return (status.st_mode & (S_IRUSR | S_IWUSR)) != (S_IRUSR | S_IWUSR);
}

bool TAMBRO_Global::chmodW(const QString &path)
{
    chmod(QFile::encodeName(path).constData(), 0777); // best effort, by contract
    return true;
}
