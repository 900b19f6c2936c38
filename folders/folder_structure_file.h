// Where the phone keeps its folder structure file. Shared with the tools,
// which read the same file to show the structure it describes.
#pragma once

#include <KIV_Paths.h>

#include <QFile>
#include <QString>

namespace Tambro {

// A device-specific file under the preload root takes precedence over the
// system's; the system's is used whether it exists or not, so that a phone
// without either gets an empty structure.
inline QString folderStructureFilePath()
{
    const QString name = u'/' + QLatin1String(KivPaths::FolderStructureFileName);
    const QString deviceFile = QLatin1String(KivPaths::FileManagerDeviceFolder) + name;
    if (QFile::exists(deviceFile))
        return deviceFile;
    return QLatin1String(KivPaths::FileManagerSystemFolder) + name;
}

} // namespace Tambro
