// Which icon shows a file: the first row of the icon table whose predicate
// holds. The order settles every overlap: registry kinds first, then an
// unhandled type, then the fixed lists, which only handled types reach.
#include "file_types.h"
#include "icon_names.h"

#include "TAMBRO_Global.h"

#include <array>

using Tambro::IconPair;
namespace Icons = Tambro::Icons;

namespace {

struct IconRow
{
    bool (*matches)(const Tambro::NameExtensions &name); // null for the fallback row
    IconPair icons;
};

constexpr IconRow FileIconTable[] = {
    {Tambro::hasAudioType, Icons::Audio},
    {Tambro::hasImageType, Icons::Picture},
    {Tambro::hasVideoType, Icons::Video},
    {Tambro::isJavaExtension, Icons::JavaApplication},
    {Tambro::hasNoDefaultHandler, Icons::Unsupported},
    {Tambro::isPartialDownloadExtension, Icons::PartialDownload},
    {Tambro::isCompleteDownloadExtension, Icons::CompleteDownload},
    {Tambro::isVoiceRecordExtension, Icons::VoiceRecord},
    {Tambro::isTextExtension, Icons::Text},
    {Tambro::isBookmarkExtension, Icons::Bookmark},
    {Tambro::isSavedImExtension, Icons::SavedConversation},
    {Tambro::isGlintExtension, Icons::LightPattern},
    {Tambro::isVcardExtension, Icons::Contact},
    {Tambro::isVcalendarExtension, Icons::Calendar},
    {nullptr, Icons::OtherFile},
};

// The row's icon name as a text made once: a listing asks for one per file,
// and copying a made text allocates nothing.
const QString &iconNameOf(const IconRow &row, bool big)
{
    using Names = std::array<QString, 2>; // small, big
    static const auto names = [] {
        std::array<Names, std::size(FileIconTable)> made;
        for (size_t i = 0; i < made.size(); ++i) {
            const IconPair &icons = FileIconTable[i].icons;
            made[i] = {QString::fromLatin1(icons.small), QString::fromLatin1(icons.big)};
        }
        return made;
    }();
    return names[&row - FileIconTable][big];
}

} // namespace

QString TAMBRO_Global::getFileIconByType(const QString &name, bool big)
{
    const Tambro::NameExtensions extensions(name);
    const IconRow *row = FileIconTable;
    while (row->matches && !row->matches(extensions))
        ++row;
    return iconNameOf(*row, big);
}
