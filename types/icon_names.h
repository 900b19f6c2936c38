// Every icon the library asks the platform's icon store for, by its exact
// file name: file kinds, folders, storages and notices. The one list of them,
// for the library, the simulated phone's icon set and the tests.
#pragma once

#include <iterator>

namespace Tambro {

struct IconPair
{
    const char *big;
    const char *small;
};

namespace Icons {

inline constexpr IconPair Audio{"fm_audio_thb.gif", "fm_audio_small.gif"};
inline constexpr IconPair Picture{"fm_pic_thb.gif", "fm_pic_small.gif"};
inline constexpr IconPair Video{"fm_vid_thb.gif", "fm_vid_small.gif"};
inline constexpr IconPair JavaApplication{"fm_java_midlet_thb.gif", "fm_java_midlet_small.gif"};
inline constexpr IconPair Unsupported{"msg_unsupport_type_thb.gif", "msg_unsupport_file_type_small.gif"};
inline constexpr IconPair PartialDownload{"Partial_Download_B.gif", "Partial_Download_S.gif"};
inline constexpr IconPair CompleteDownload{"Complete_Download_B.gif", "Complete_Download_S.gif"};
inline constexpr IconPair VoiceRecord{"fm_voice_record_thb.gif", "fm_voice_record_small.gif"};
inline constexpr IconPair Text{"fm_text_thb.gif", "fm_text_small.gif"};
inline constexpr IconPair Bookmark{"fm_bkmrk_thb.gif", "fm_bkmrk_small.gif"};
inline constexpr IconPair SavedConversation{"fm_save_im_conv_thb.gif", "fm_save_im_conv_small.gif"};
inline constexpr IconPair LightPattern{"pfile_light_thb.gif", "pfile_light_small.gif"};
inline constexpr IconPair Contact{"fm_vcf_thb.gif", "fm_vcf_small.gif"};
inline constexpr IconPair Calendar{"fm_vcs_thb.gif", "fm_vcs_small.gif"};
inline constexpr IconPair OtherFile{"msg_receipt_request_thb.gif", "msg_receipt_request_small.gif"};
inline constexpr IconPair Unknown{"fm_unknown_thb.gif", "fm_unknown_small.gif"};
inline constexpr IconPair BackArrow{"gen_back_to_arrw_thb.gif", "gen_back_to_arrw_small.gif"};
inline constexpr IconPair InvisibleLink{"fm_invis_link_thb.gif", "fm_invis_link_small.gif"};
inline constexpr IconPair Folder{"fm_folder_thb.gif", "fm_folder_small.gif"};
inline constexpr IconPair CarrierFolder{"fm_folder_carrier_thb.gif", "fm_folder_carrier_small.gif"};
inline constexpr IconPair RingToneFolder{"fm_ringtone_folder_thb.gif", "fm_ringtone_folder_small.gif"};
inline constexpr IconPair PictureFolder{"fm_pict_folder_thb.gif", "fm_pict_folder_small.gif"};
inline constexpr IconPair AudioFolder{"fm_audio_folder_thb.gif", "fm_audio_folder_small.gif"};
inline constexpr IconPair VideoFolder{"fm_vid_folder_thb.gif", "fm_vid_folder_small.gif"};
inline constexpr IconPair VoiceRecordFolder{"fm_voice_record_folder_thb.gif",
                                            "fm_voice_record_folder_small.gif"};
inline constexpr IconPair DocumentFolder{"fm_my_doc_folder_thb.gif", "fm_my_doc_folder_small.gif"};
inline constexpr IconPair BusinessCard{"bc_std.png", "bc_small.gif"};
inline constexpr IconPair MemoryCard{"fm_memory_card_thb.gif", "fm_memory_card_small.gif"};
inline constexpr IconPair SimCard{"ctact_sim_thb.gif", "ctact_sim_small.gif"};

// Single pictures: the phone memory's, which stands for both sizes, and the
// title icons of notices.
inline constexpr char PhoneMemory[] = "fm_phone_mem_small.gif";
inline constexpr char InformationNotice[] = "info_pop.gif";
inline constexpr char ErrorNotice[] = "error_pop.gif";

// Loaded at every start of the context, each pair's small icon first.
inline constexpr IconPair Standard[] = {
    BackArrow,   Bookmark,       InvisibleLink,    Picture,        Audio,       Video,
    VoiceRecord, Unsupported,    OtherFile,        Unknown,        Folder,      CarrierFolder,
    CompleteDownload, RingToneFolder, PictureFolder, AudioFolder, VideoFolder, BusinessCard,
    VoiceRecordFolder, DocumentFolder,
};
static_assert(std::size(Standard) == 20);

inline constexpr IconPair AllPairs[] = {
    Audio,         Picture,        Video,           JavaApplication, Unsupported, PartialDownload,
    CompleteDownload, VoiceRecord, Text,            Bookmark,        SavedConversation,
    LightPattern,  Contact,        Calendar,        OtherFile,       Unknown,     BackArrow,
    InvisibleLink, Folder,         CarrierFolder,   RingToneFolder,  PictureFolder,
    AudioFolder,   VideoFolder,    VoiceRecordFolder, DocumentFolder, BusinessCard, MemoryCard,
    SimCard,
};
inline constexpr const char *Singles[] = {PhoneMemory, InformationNotice, ErrorNotice};

} // namespace Icons

} // namespace Tambro
