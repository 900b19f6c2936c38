#include "folder_reader.h"

#include <QFile>

#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

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

} // namespace

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
