#include "icon_cache.h"

#include "TAMBRO_Global.h"

#include <RES_ICON_Reader.h>

#include <QPixmap>

#include <unordered_map>

namespace {

// A plain FNV-1a over the UTF-16 units: a list view asks for the same few
// names for every row, and this beats QHash's seeded hash on short keys.
struct IconNameHash
{
    size_t operator()(const QString &name) const noexcept
    {
        size_t hash = 14695981039346656037ull;
        for (QChar c : name)
            hash = (hash ^ c.unicode()) * 1099511628211ull;
        return hash;
    }
};

using IconCache = std::unordered_map<QString, QPixmap, IconNameHash>;

// Never freed: pictures must not outlive the application object in static
// destructors, and the cache lives as long as the process anyway.
IconCache &iconCache()
{
    static IconCache *const cache = new IconCache;
    return *cache;
}

// Small before big, in the order the platform is asked.
constexpr const char *StandardIcons[] = {
    "gen_back_to_arrw_small.gif", "gen_back_to_arrw_thb.gif",
    "fm_bkmrk_small.gif", "fm_bkmrk_thb.gif",
    "fm_invis_link_small.gif", "fm_invis_link_thb.gif",
    "fm_pic_small.gif", "fm_pic_thb.gif",
    "fm_audio_small.gif", "fm_audio_thb.gif",
    "fm_vid_small.gif", "fm_vid_thb.gif",
    "fm_voice_record_small.gif", "fm_voice_record_thb.gif",
    "msg_unsupport_file_type_small.gif", "msg_unsupport_type_thb.gif",
    "msg_receipt_request_small.gif", "msg_receipt_request_thb.gif",
    "fm_unknown_small.gif", "fm_unknown_thb.gif",
    "fm_folder_small.gif", "fm_folder_thb.gif",
    "fm_folder_carrier_small.gif", "fm_folder_carrier_thb.gif",
    "Complete_Download_S.gif", "Complete_Download_B.gif",
    "fm_ringtone_folder_small.gif", "fm_ringtone_folder_thb.gif",
    "fm_pict_folder_small.gif", "fm_pict_folder_thb.gif",
    "fm_audio_folder_small.gif", "fm_audio_folder_thb.gif",
    "fm_vid_folder_small.gif", "fm_vid_folder_thb.gif",
    "bc_small.gif", "bc_std.png",
    "fm_voice_record_folder_small.gif", "fm_voice_record_folder_thb.gif",
    "fm_my_doc_folder_small.gif", "fm_my_doc_folder_thb.gif",
};
static_assert(std::size(StandardIcons) == 40);

} // namespace

namespace Tambro {

void preloadIcons()
{
    IconCache &cache = iconCache();
    RES_ICON_Reader reader;
    for (const char *name : StandardIcons)
        cache.insert_or_assign(QString::fromLatin1(name), reader.getIcon(name, true));
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
