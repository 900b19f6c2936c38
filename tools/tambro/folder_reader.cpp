#include "folder_reader.h"

#include <QFile>

#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

// What a link leads to; a dangling link is an empty file.
DiskEntry entryAt(int folder, const char *name)
{
    const QByteArray bytes(name);
    DiskEntry entry{bytes, QFile::decodeName(bytes)};
    struct stat info;
    if (::fstatat(folder, name, &info, 0) == 0) {
        entry.isFolder = S_ISDIR(info.st_mode);
        entry.size = info.st_size;
        entry.modified = info.st_mtim.tv_sec;
    }
    return entry;
}

constexpr int MaxDepth = 64;

// Takes the descriptor of the folder at path, which is at depth below the tree's top.
void addUnreadable(int folderFd, const QByteArray &path, int depth, QList<QByteArray> &unreadable)
{
    DIR *dir = ::fdopendir(folderFd);
    if (!dir) {
        ::close(folderFd);
        unreadable.append(path);
        return;
    }
    while (const dirent *entry = ::readdir(dir)) {
        const char *name = entry->d_name;
        if (entry->d_type != DT_DIR || std::strcmp(name, ".") == 0 || std::strcmp(name, "..") == 0
            || depth >= MaxDepth)
            continue;
        const QByteArray subfolder = path + '/' + name;
        const int fd = ::openat(::dirfd(dir), name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
        if (fd < 0)
            unreadable.append(subfolder);
        else
            addUnreadable(fd, subfolder, depth + 1, unreadable);
    }
    ::closedir(dir);
}

} // namespace

QList<QByteArray> unreadableFolders(const QString &path)
{
    const QByteArray top = QFile::encodeName(path);
    struct stat info;
    if (::stat(top.constData(), &info) != 0 || !S_ISDIR(info.st_mode))
        return {};
    QList<QByteArray> unreadable;
    const int fd = ::open(top.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd < 0)
        unreadable.append(top);
    else
        addUnreadable(fd, top, 0, unreadable);
    return unreadable;
}

// By bytes, not through QDir, which decodes every name to text and then
// cannot find the entries whose names are not UTF-8.
std::optional<QList<DiskEntry>> readFolder(const QString &folder)
{
    DIR *dir = ::opendir(QFile::encodeName(folder).constData());
    if (!dir)
        return std::nullopt;
    QList<DiskEntry> entries;
    while (const dirent *entry = ::readdir(dir)) {
        if (std::strcmp(entry->d_name, ".") == 0 || std::strcmp(entry->d_name, "..") == 0)
            continue;
        entries.append(entryAt(::dirfd(dir), entry->d_name));
    }
    ::closedir(dir);
    return entries;
}
