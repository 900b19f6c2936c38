// The phone's file system: where its storages are mounted, where the system
// keeps its mount table, preloaded content and the applications' own files.
#pragma once

namespace KivPaths {

inline constexpr char MountTable[] = "/etc/mtab";

// Mount points of the three kinds of storage.
inline constexpr char PhoneMemory[] = "/kivlocal/download/tambro";
inline constexpr char MemoryCard[] = "/mmc/mmca1";
inline constexpr char MegaSim[] = "/mmc/megasim1";
// The memory card's device, as its driver knows it.
inline constexpr char MemoryCardDevice[] = "/dev/mmca";

// Read-only content that comes with the phone: ring tones, pictures, and
// files by which a device overrides the system's.
inline constexpr char PreloadRoot[] = "/usr/data_resource";
// The file manager's system files.
inline constexpr char FileManagerSystemFolder[] = "/usr/SYSqtapp/tambro";
// Its device-specific files, which take precedence.
inline constexpr char FileManagerDeviceFolder[] = "/usr/data_resource/tambro";
// The folder structure file, in either folder.
inline constexpr char FolderStructureFileName[] = "kiv_tambrostruct.cfg";

// Owner and group of the phone's user files, so that every application may
// write into the fixed folders whichever process created them.
inline constexpr unsigned UserFilesOwner = 2000;
inline constexpr unsigned UserFilesGroup = 233;

} // namespace KivPaths
