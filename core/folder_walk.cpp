#include "folder_walk.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// A folder's listing, read as a stream: memory does not grow with the
// number of entries.
class FolderStream
{
public:
    explicit FolderStream(int fd) : m_dir(fd >= 0 ? fdopendir(fd) : nullptr)
    {
        if (fd >= 0 && !m_dir)
            close(fd);
    }
    ~FolderStream()
    {
        if (m_dir)
            closedir(m_dir);
    }
    FolderStream(const FolderStream &) = delete;
    FolderStream &operator=(const FolderStream &) = delete;

    const dirent *next() { return m_dir ? readdir(m_dir) : nullptr; }
    // Never through a link: a link loop cannot be entered.
    int openSubfolder(const char *name) const
    {
        return openat(dirfd(m_dir), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    }
    off_t fileSize(const char *name) const
    {
        struct stat status;
        return fstatat(dirfd(m_dir), name, &status, AT_SYMLINK_NOFOLLOW) == 0 ? status.st_size : 0;
    }

private:
    DIR *m_dir;
};

bool isDotOrDotDot(const char *name)
{
    return name[0] == '.' && (name[1] == '\0' || (name[1] == '.' && name[2] == '\0'));
}

} // namespace

namespace Tambro {

int openFolder(const QString &path)
{
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

int folderLevel(const QString &path)
{
    return TAMBRO_Global::getFolderLevel(QDir::cleanPath(QFileInfo(path).absoluteFilePath()));
}

quint64 treeSize(int folderFd, int level)
{
    FolderStream folder(folderFd);
    quint64 sum = 0;
    while (const dirent *entry = folder.next()) {
        if (isDotOrDotDot(entry->d_name))
            continue;
        if (entry->d_type == DT_REG)
            sum += quint64(folder.fileSize(entry->d_name));
        else if (entry->d_type == DT_DIR && level + 1 <= MaxWalkLevel)
            sum += treeSize(folder.openSubfolder(entry->d_name), level + 1);
    }
    return sum;
}

TAMBRO_ITEM_COUNT treeCount(int folderFd, int level, bool recursive)
{
    FolderStream folder(folderFd);
    TAMBRO_ITEM_COUNT count;
    while (const dirent *entry = folder.next()) {
        if (entry->d_name[0] == '.') // hidden entries are not the user's items
            continue;
        if (entry->d_type == DT_REG) {
            ++count.files;
        } else if (entry->d_type == DT_DIR) {
            ++count.folders;
            if (!recursive)
                continue;
            if (level + 1 > MaxWalkLevel)
                break; // the rest of this folder is not counted
            const TAMBRO_ITEM_COUNT below = treeCount(folder.openSubfolder(entry->d_name), level + 1, true);
            count.files += below.files;
            count.folders += below.folders;
        }
    }
    return count;
}

} // namespace Tambro
