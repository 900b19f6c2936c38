#include "folder_reader.h"

#include <QFile>

#include <cstring>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>

namespace {

bool isFolderAt(int folder, const char *name)
{
    struct stat info;
    return ::fstatat(folder, name, &info, 0) == 0 && S_ISDIR(info.st_mode);
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
        const QByteArray name(entry->d_name);
        entries.append({name, QFile::decodeName(name), isFolderAt(::dirfd(dir), entry->d_name)});
    }
    ::closedir(dir);
    return entries;
}
