// The folder structure file's format as the phone keeps it: where the file
// is, the names of its groups, and how preloaded folders are named in it.
// Read by the library and by the tools, which show the structure it describes.
#pragma once

#include <KIV_Paths.h>

#include <QFile>
#include <QString>

namespace Tambro {

// Group names of the folder structure file.
inline constexpr char KeyWordGroup[] = "TAMBRO_KEYWORD";
inline constexpr char PseudoKeyWordGroup[] = "TAMBRO_PSEUDO_KEYWORD";
inline constexpr char RootGroup[] = "TOPLEVEL";

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

// Preloaded content: the factory's read-only folders under the preload root,
// named in the file with a tag in place of that root.
inline const QString PreloadRoot = QLatin1String(KivPaths::PreloadRoot);
inline const QString PreloadTag = QStringLiteral("//ZELK_PRELOAD:");

// Both replace by position, the root's 18 or the tag's 15 leading characters,
// without looking where the root or tag stands: callers have checked that.
inline QString toPreloadTagForm(const QString &path)
{
    return QString(path).replace(0, PreloadRoot.size(), PreloadTag);
}

inline QString fromPreloadTagForm(const QString &taggedPath)
{
    return QString(taggedPath).replace(0, PreloadTag.size(), PreloadRoot);
}

} // namespace Tambro
