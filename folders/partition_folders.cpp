// Telling a storage's mount folder, and folders inside one.
#include "partition_folders.h"

#include "TAMBRO_FixedFolder.h"

#include <QFileInfo>

namespace {

// The number that stands for the preloaded content among partition numbers.
constexpr int PreloadedContent = -4;

} // namespace

int TAMBRO_Global::isPartiName(const QString &path)
{
    return Tambro::firstPartition([&](const QString &mountFolder) {
        return mountFolder == path && mountFolder.contains(u'/') && QFileInfo(mountFolder).isDir();
    });
}

int TAMBRO_Global::isPartiSubFolder(const QString &path)
{
    if (TAMBRO_FixedFolder::isPreloadFolder(path))
        return PreloadedContent;
    // Anywhere in the path, not only at its start.
    return Tambro::firstPartition([&](const QString &mountFolder) {
        return mountFolder.startsWith(u'/') && path.contains(mountFolder);
    });
}
