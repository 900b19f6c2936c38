// Which icon shows a file: the first row of the icon table whose predicate
// holds. The order settles every overlap: registry kinds first, then an
// unhandled type, then the fixed lists, which only handled types reach.
#include "file_types.h"
#include "icon_names.h"

#include "TAMBRO_Global.h"

using Tambro::IconPair;
namespace Icons = Tambro::Icons;

namespace {

struct IconRow
{
    bool (*matches)(const QString &name); // null for the fallback row
    IconPair icons;
};

constexpr IconRow FileIconTable[] = {
    {TAMBRO_Global::isAudioExtension, Icons::Audio},
    {TAMBRO_Global::isImageExtension, Icons::Picture},
    {TAMBRO_Global::isVideoExtension, Icons::Video},
    {Tambro::isJavaExtension, Icons::JavaApplication},
    {Tambro::hasNoDefaultHandler, Icons::Unsupported},
    {Tambro::isPartialDownloadExtension, Icons::PartialDownload},
    {Tambro::isCompleteDownloadExtension, Icons::CompleteDownload},
    {Tambro::isVoiceRecordExtension, Icons::VoiceRecord},
    {Tambro::isTextExtension, Icons::Text},
    {TAMBRO_Global::isBookMarkExtension, Icons::Bookmark},
    {Tambro::isSavedImExtension, Icons::SavedConversation},
    {TAMBRO_Global::isGlintExtension, Icons::LightPattern},
    {Tambro::isVcardExtension, Icons::Contact},
    {Tambro::isVcalendarExtension, Icons::Calendar},
    {nullptr, Icons::OtherFile},
};

} // namespace

QString TAMBRO_Global::getFileIconByType(const QString &name, bool big)
{
    const IconRow *row = FileIconTable;
    while (row->matches && !row->matches(name))
        ++row;
    return QLatin1String(big ? row->icons.big : row->icons.small);
}
