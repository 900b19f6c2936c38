// Which icon shows a file: the first row of the icon table whose predicate
// holds. The order settles every overlap: registry kinds first, then an
// unhandled type, then the fixed lists, which only handled types reach.
#include "file_types.h"

#include "TAMBRO_Global.h"

namespace {

struct IconRow
{
    bool (*matches)(const QString &name); // null for the fallback row
    const char *big;
    const char *small;
};

// The names are keys of the platform's icon store, irregular ones included.
constexpr IconRow FileIconTable[] = {
    {TAMBRO_Global::isAudioExtension, "fm_audio_thb.gif", "fm_audio_small.gif"},
    {TAMBRO_Global::isImageExtension, "fm_pic_thb.gif", "fm_pic_small.gif"},
    {TAMBRO_Global::isVideoExtension, "fm_vid_thb.gif", "fm_vid_small.gif"},
    {Tambro::isJavaExtension, "fm_java_midlet_thb.gif", "fm_java_midlet_small.gif"},
    {Tambro::hasNoDefaultHandler, "msg_unsupport_type_thb.gif", "msg_unsupport_file_type_small.gif"},
    {Tambro::isPartialDownloadExtension, "Partial_Download_B.gif", "Partial_Download_S.gif"},
    {Tambro::isCompleteDownloadExtension, "Complete_Download_B.gif", "Complete_Download_S.gif"},
    {Tambro::isVoiceRecordExtension, "fm_voice_record_thb.gif", "fm_voice_record_small.gif"},
    {Tambro::isTextExtension, "fm_text_thb.gif", "fm_text_small.gif"},
    {TAMBRO_Global::isBookMarkExtension, "fm_bkmrk_thb.gif", "fm_bkmrk_small.gif"},
    {Tambro::isSavedImExtension, "fm_save_im_conv_thb.gif", "fm_save_im_conv_small.gif"},
    {TAMBRO_Global::isGlintExtension, "pfile_light_thb.gif", "pfile_light_small.gif"},
    {Tambro::isVcardExtension, "fm_vcf_thb.gif", "fm_vcf_small.gif"},
    {Tambro::isVcalendarExtension, "fm_vcs_thb.gif", "fm_vcs_small.gif"},
    {nullptr, "msg_receipt_request_thb.gif", "msg_receipt_request_small.gif"},
};

} // namespace

QString TAMBRO_Global::getFileIconByType(const QString &name, bool big)
{
    const IconRow *row = FileIconTable;
    while (row->matches && !row->matches(name))
        ++row;
    return QLatin1String(big ? row->big : row->small);
}
