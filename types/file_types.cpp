// File type predicates. Fixed lists compare the lower-cased extension; the
// registry sees the extension as written and decides itself whether case
// matters.
#include "file_types.h"

#include "extension.h"

#include "TAMBRO_FixedFolder.h"
#include "TAMBRO_Global.h"

#include <AM_MimeRegistry.h>

using Tambro::fileNameExtension;
using Tambro::isListedExtension;
using Tambro::lastDotExtension;
using L = QLatin1String;

namespace {

// Whether the registry's MIME type for the extension begins with the word.
// The type's white space is simplified first; only a leading run of it can
// matter for a word at its start, so that alone is skipped.
bool hasRegisteredKind(const QString &name, QLatin1String word)
{
    const QString extension = lastDotExtension(name).toString();
    const QString type = TAMBRO_Global::getAmMimeRegInstance()->getAssociatedMimeType(extension);
    QStringView rest(type);
    while (!rest.isEmpty() && rest.front().isSpace())
        rest = rest.mid(1);
    return rest.startsWith(word, Qt::CaseInsensitive);
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
    return isListedExtension(lastDotExtension(name), {L("gnx")});
}

bool TAMBRO_Global::isBookMarkExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("url"), L("vbm")});
}

bool TAMBRO_Global::isAudioExtension(const QString &name)
{
    return hasRegisteredKind(name, L("audio"));
}

bool TAMBRO_Global::isVideoExtension(const QString &name)
{
    return hasRegisteredKind(name, L("video"));
}

bool TAMBRO_Global::isImageExtension(const QString &name)
{
    return hasRegisteredKind(name, L("image"));
}

bool TAMBRO_Global::canAsRingTone(const QString &path)
{
    // Only audio shipped with the phone qualifies, not the user's own.
    return TAMBRO_FixedFolder::isPreloadFolder(path) && isAudioExtension(path);
}

namespace Tambro {

bool isCompleteDownloadExtension(const QString &name)
{
    return isListedExtension(fileNameExtension(name), {L("cim")});
}

bool isPartialDownloadExtension(const QString &name)
{
    return isListedExtension(fileNameExtension(name), {L("cmd")});
}

bool isSavedImExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("im")});
}

bool isVoiceRecordExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("amr")});
}

bool isVcardExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("vcf")});
}

bool isVcalendarExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("vcs")});
}

bool isJavaExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("jar"), L("jad")});
}

bool isTextExtension(const QString &name)
{
    return isListedExtension(lastDotExtension(name), {L("txt")});
}

bool hasNoDefaultHandler(const QString &name)
{
    const QString extension = lastDotExtension(name).toString();
    return TAMBRO_Global::getAmMimeRegInstance()
        ->getDefaultHandlerId(MIME_LOOKUP_BY_EXTENSION, extension, QString())
        .isNull();
}

} // namespace Tambro
