// The phone's icons from the desktop's icon theme: each of the phone's icon
// names stands for a freedesktop icon name; where the theme has none, the
// drawn icon set that comes with the platform shows it, so that every name
// the library asks for gives a picture.
#include "RES_ICON_Reader.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QIcon>
#include <QImage>

#include <cstring>

namespace {

struct ThemeName
{
    const char *phone; // the phone's name without its size and suffix
    const char *theme;
};

constexpr ThemeName ThemeNames[] = {
    {"fm_folder", "folder"},
    {"fm_folder_carrier", "folder-remote"},
    {"fm_pict_folder", "folder-pictures"},
    {"fm_audio_folder", "folder-music"},
    {"fm_ringtone_folder", "folder-music"},
    {"fm_voice_record_folder", "folder-music"},
    {"fm_vid_folder", "folder-videos"},
    {"fm_my_doc_folder", "folder-documents"},
    {"fm_memory_card", "media-flash"},
    {"ctact_sim", "media-flash"},
    {"fm_phone_mem", "phone"},
    {"fm_pic", "image-x-generic"},
    {"fm_audio", "audio-x-generic"},
    {"fm_voice_record", "audio-x-generic"},
    {"fm_vid", "video-x-generic"},
    {"fm_text", "text-x-generic"},
    {"fm_vcf", "x-office-address-book"},
    {"fm_vcs", "x-office-calendar"},
    {"fm_java_midlet", "application-x-executable"},
    {"fm_bkmrk", "text-html"},
    {"fm_unknown", "unknown"},
};

// "fm_pict_folder_small.gif" -> "fm_pict_folder"
QByteArray phoneName(const char *iconName)
{
    QByteArray name(iconName);
    name.truncate(name.lastIndexOf('.') < 0 ? name.size() : name.lastIndexOf('.'));
    for (const char *size : {"_small", "_thb"}) {
        if (name.endsWith(size))
            name.chop(qsizetype(std::strlen(size)));
    }
    return name;
}

const char *themeName(const char *iconName)
{
    const QByteArray name = phoneName(iconName);
    for (const ThemeName &known : ThemeNames) {
        if (name == known.phone)
            return known.theme;
    }
    return nullptr;
}

} // namespace

RES_ICON_Reader::RES_ICON_Reader() = default;

RES_ICON_Reader::~RES_ICON_Reader() = default;

QPixmap RES_ICON_Reader::getIcon(const char *name, bool big)
{
    // Pixmaps need a QGuiApplication; a name is a file of the set, never a path.
    if (!name || !*name || std::strchr(name, '/') || !qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return QPixmap();
    const char *theme = themeName(name);
    const QIcon themed = theme ? QIcon::fromTheme(QLatin1String(theme)) : QIcon();
    if (!themed.isNull())
        return themed.pixmap(big ? 48 : 16);
    return QPixmap::fromImage(QImage(QStringLiteral(":/kivsim/icons/") + QLatin1String(name)));
}
