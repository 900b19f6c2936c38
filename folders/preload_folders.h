// Preloaded content: the factory's read-only folders under the preload root,
// named in the folder structure file with a tag in place of that root.
// Shared with the tools, which show both forms.
#pragma once

#include <KIV_Paths.h>

#include <QString>

namespace Tambro {

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
