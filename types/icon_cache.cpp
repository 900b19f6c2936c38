#include "icon_cache.h"

#include "icon_names.h"

#include "core/text_hash.h"

#include "TAMBRO_Global.h"

#include <RES_ICON_Reader.h>

#include <QPixmap>

#include <unordered_map>

using Tambro::IconPair;
namespace Icons = Tambro::Icons;

namespace {

// A list view asks for the same few names for every row.
using IconCache = std::unordered_map<QString, QPixmap, Tambro::TextHash>;

// Never freed: pictures must not outlive the application object in static
// destructors, and the cache lives as long as the process anyway.
IconCache &iconCache()
{
    static IconCache *const cache = new IconCache;
    return *cache;
}

} // namespace

namespace Tambro {

void preloadIcons()
{
    IconCache &cache = iconCache();
    RES_ICON_Reader reader;
    for (const IconPair &pair : Icons::Standard) {
        for (const char *name : {pair.small, pair.big})
            cache.insert_or_assign(QString::fromLatin1(name), reader.getIcon(name, true));
    }
}

} // namespace Tambro

QPixmap TAMBRO_Global::getIcon(const QString &iconName)
{
    IconCache &cache = iconCache();
    const auto cached = cache.find(iconName);
    if (cached != cache.end())
        return cached->second;
    // A null picture is kept too: a missing icon is asked for once.
    RES_ICON_Reader reader;
    const QPixmap icon = reader.getIcon(iconName.toLatin1().constData(), true);
    cache.emplace(iconName, icon);
    return icon;
}
