// File type predicates. Fixed lists compare the lower-cased extension; the
// registry sees the extension as written and decides itself whether case
// matters.
#include "file_types.h"

#include "extension.h"

#include "TAMBRO_FixedFolder.h"
#include "TAMBRO_Global.h"

#include <AM_MimeRegistry.h>

#include <algorithm>

using Tambro::fileNameExtension;
using Tambro::isListedExtension;
using Tambro::lastDotExtension;
using L = QLatin1String;

namespace {

// Whether the registry's MIME type for the extension begins with the word.
// The type's white space is simplified first; only a leading run of it can
// matter for a word at its start, so that alone is skipped.
// The text in one string per thread, written over from name to name: no
// allocation while the registry keeps no copy of it, and a copy it keeps
// stays as it was, since writing to a shared string detaches it first.
const QString &threadText(QStringView text)
{
    thread_local QString written;
    written.resize(text.size());
    std::copy(text.begin(), text.end(), written.data());
    return written;
}

bool hasRegisteredKind(const Tambro::NameExtensions &name, QLatin1String word)
{
    const QString type = TAMBRO_Global::getAmMimeRegInstance()->getAssociatedMimeType(name.lastDotText());
    QStringView rest(type);
    while (!rest.isEmpty() && rest.front().isSpace())
        rest = rest.mid(1);
    return Tambro::startsWithWord(rest, word);
}

} // namespace

bool TAMBRO_Global::isThumbExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("pic"), L("bmp"), L("xpm"), L("png"), L("wbmp"),
                                                      L("jpg"), L("gif"), L("jpeg"), L("jpe")});
}

bool TAMBRO_Global::isJpgExtension(const QString &name)
{
    // Narrower than the thumbnail list on purpose: "jpe" is not a JPG here.
    return isListedExtension(lastDotExtension(name), {L("jpg"), L("jpeg")});
}

bool TAMBRO_Global::isGlintExtension(const QString &name)
{
    return Tambro::isGlintExtension(name);
}

bool TAMBRO_Global::isBookMarkExtension(const QString &name)
{
    return Tambro::isBookmarkExtension(name);
}

bool TAMBRO_Global::isAudioExtension(const QString &name)
{
    return Tambro::hasAudioType(name);
}

bool TAMBRO_Global::isVideoExtension(const QString &name)
{
    return Tambro::hasVideoType(name);
}

bool TAMBRO_Global::isImageExtension(const QString &name)
{
    return Tambro::hasImageType(name);
}

bool TAMBRO_Global::canAsRingTone(const QString &path)
{
    // Only audio shipped with the phone qualifies, not the user's own.
    return TAMBRO_FixedFolder::isPreloadFolder(path) && isAudioExtension(path);
}

namespace Tambro {

NameExtensions::NameExtensions(const QString &name)
    : name(name), lastDot(lastDotExtension(name)), fileName(fileNameExtension(name))
{
}

const QString &NameExtensions::lastDotText() const
{
    if (!m_lastDotText)
        m_lastDotText = lastDot.size() == name.size() ? &name : &threadText(lastDot);
    return *m_lastDotText;
}

bool isCompleteDownloadExtension(const NameExtensions &name)
{
    return isListedExtension(name.fileName, {L("cim")});
}

bool isPartialDownloadExtension(const NameExtensions &name)
{
    return isListedExtension(name.fileName, {L("cmd")});
}

bool isSavedImExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("im")});
}

bool isVoiceRecordExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("amr")});
}

bool isVcardExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("vcf")});
}

bool isVcalendarExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("vcs")});
}

bool isJavaExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("jar"), L("jad")});
}

bool isTextExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("txt")});
}

bool isGlintExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("gnx")});
}

bool isBookmarkExtension(const NameExtensions &name)
{
    return isListedExtension(name.lastDot, {L("url"), L("vbm")});
}

bool hasAudioType(const NameExtensions &name)
{
    return hasRegisteredKind(name, L("audio"));
}

bool hasVideoType(const NameExtensions &name)
{
    return hasRegisteredKind(name, L("video"));
}

bool hasImageType(const NameExtensions &name)
{
    return hasRegisteredKind(name, L("image"));
}

bool hasNoDefaultHandler(const NameExtensions &name)
{
    return TAMBRO_Global::getAmMimeRegInstance()
        ->getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, name.lastDotText(), QString())
        .isNull();
}

} // namespace Tambro
