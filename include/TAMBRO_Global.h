/// \file
/// The library's process-wide utility context: partitions, file types, icons,
/// folder resources, formatting and validation, all as static members.
#pragma once

#include "kivtambro_export.h"

#include <QDateTime>
#include <QPixmap>
#include <QString>

class AM_MimeRegistry;

/// What getNum counted: regular files, then folders. Both 0 for anything but
/// a folder.
struct TAMBRO_ITEM_COUNT
{
    /// Regular files, as the folder listing reports their type: links,
    /// devices and FIFOs are none; hidden ones (a name beginning with ".") are
    /// not counted.
    quint32 files = 0;
    /// Folders, as the folder listing reports their type: a link to a folder
    /// is none; hidden ones are not counted, too-deep ones are counted but not
    /// entered.
    quint32 folders = 0;
};

/// How a folder is shown in a listing, as TAMBRO_Global::getFolderRes fills
/// it. The fields that an answer does not concern keep what the caller put
/// there.
struct _TAMBRO_FOLDER_RES
{
    QString bigIcon; ///< thumbnail-size icon file name, for TAMBRO_Global::getIcon
    QString smallIcon; ///< list-size icon file name, for TAMBRO_Global::getIcon
    QString displayName; ///< the name the listing shows, translated for a fixed folder
    QString reserved; ///< never set by the library: the caller's own
};

/// The library's process-wide context: static functions over state that lives
/// as long as the process (the partition table, the MIME registry handle, the
/// icon cache, the feature switches), as on the phone. Nothing throws: a bad
/// or unknown argument gets the neutral answer each function names.
///
/// Call it from the application's main thread. A worker thread may run the
/// folder walks (getSize(), getNum()) and write sizes, dates and durations,
/// which touch no shared state once the application object exists.
class KIVTAMBRO_EXPORT TAMBRO_Global
{
public:
    /// \name Context
    /// @{

    /// The one process-wide object, made at the first call; never null. Every
    /// call runs initMem() first: it builds the partition table on first use,
    /// and rescans it whenever initMemFlag has been cleared.
    static TAMBRO_Global *instance();
    /// Builds the partition table and preloads the icons unless initMemFlag is
    /// set, then sets it. A build reads the mount table (/etc/mtab; refused
    /// whole, with a warning, when it is larger than 1 MiB or no regular
    /// file), asks the card driver for its report once per card record and
    /// for the card status once, reads the MegaSIM's name from the
    /// device-management tree once per MegaSIM record, and loads the 20
    /// standard icon pairs (40 pictures) from the platform's icon store,
    /// replacing the cached ones. A rebuild renumbers the partitions.
    /// The argument is ignored; callers pass 0.
    static void initMem(int unused);
    /// The one registry handle of the process, created and opened on the first
    /// request; never null. Owned by the library: not to be deleted.
    static AM_MimeRegistry *getAmMimeRegInstance();
    /// The file manager's root path: TAMBRO_FixedFolder::m_sFMRootPath, empty
    /// when TAMBRO_DATA_PATH was unset as the library was loaded. Reads nothing.
    static QString getDeviceName();
    /// Collation used to sort names, as the phone's list view orders them:
    /// negative, zero or positive. Asked of the platform's collation at every
    /// call, nothing cached; names it finds equal give 0 even when they differ.
    static int compareString(const QString &first, const QString &second);

    /// True once the partition table is built. Cleared by a client that knows
    /// cards came or went: the next initialising query then rescans the
    /// partitions, which renumbers them. Set by a client before the first
    /// scan, it leaves the library without a table: every partition query
    /// then answers as for no partition.
    static bool initMemFlag;
    /// Kept for clients; the library never reads or writes these. -1 unless a
    /// client sets it: getPhoneNoi() gives the phone memory's number.
    static int phoneNoi;
    /// Kept for clients; the library never reads or writes it. False unless a
    /// client sets it.
    static bool bSetLocaleFlag;
    /// Kept for clients; the library never reads or writes it. False unless a
    /// client sets it.
    static bool bmemberPasteCancelFlag;

    /// @}

    /// \name Partitions by number (1-based; numbers change on every rescan)
    /// Partitions are numbered from 1 in the order phone memory, MegaSIM,
    /// memory card; several of one type stand in reverse order of their mount
    /// table records. A rescan (see initMemFlag) numbers them afresh: a number
    /// kept across it may name another storage, or none. Each query says
    /// whether it builds the table first; one that does not answers as for an
    /// unknown number before the first scan.
    /// @{

    /// The number of partitions, 1 to 12; 0 when there is none, and when there
    /// are more than 12 (their entries are still there then, and the queries
    /// by number answer them). Initialises: builds the table on first use and
    /// rescans it when initMemFlag is cleared.
    static int getPartiActNumber();
    /// The partition's mount folder without one trailing "/", such as
    /// "/mmc/mmca1". Null for an unknown number, and for a partition without a
    /// mount folder that begins with "/": a card the driver reports as
    /// inserted although no mount table record names it. Initialises, as
    /// getPartiActNumber() does.
    static QString getPartiName(int parti);
    /// The partition's display name: "My Files" for the phone memory, "Memory
    /// Card" for a card whatever its volume label says, and the MegaSIM's name
    /// from the device-management tree ("MegaSIM" when the tree has none); the
    /// built-in names in the language of the scan. At most 127 bytes of UTF-8,
    /// cut without notice. Null for an unknown number. Initialises.
    static QString getPartiShortName(int parti);
    /// The card's volume label as the driver reports it, Latin-1 with its
    /// blanks, up to 11 bytes; for the phone memory and the MegaSIM the first
    /// 11 bytes of their mount folder ("/kivlocal/d"). Empty, not null, for an
    /// unknown number. Builds the table only when there is none: it does not
    /// rescan when initMemFlag is cleared.
    static QString getPartiLabel(int parti);
    /// The device that the mount table names for the partition, such as
    /// "/dev/mmca1", up to 31 bytes. Empty, not null, for an unknown number
    /// and for a card that no record names. Never builds the table: empty
    /// before the first scan.
    static QString getPartiDevName(int parti);
    /// The partition's device type: 0 phone memory, 1 MegaSIM, 2 memory card;
    /// -1 when not found. Initialises.
    static int getDeviceCardType(int parti);
    /// True when the partition is the phone memory; false for an unknown
    /// number. Never builds the table: false before the first scan.
    static bool isPhone(int parti);
    /// True when the partition is the MegaSIM or a memory card; false for an
    /// unknown number. Never builds the table: false before the first scan.
    static bool isCards(int parti);
    /// True when the card driver reports the card write-protected, whatever
    /// else holds (a locked card may be write-protected too); false for the
    /// phone memory, the MegaSIM and an unknown number. Never builds the table.
    static bool writeProtected(int parti);
    /// True when the card driver reports the card locked, which it tells
    /// before any other state; false for the phone memory, the MegaSIM and an
    /// unknown number. Builds the table only when there is none, like
    /// getPartiLabel().
    static bool isCardLocked(int parti);
    /// True when the card driver reports the card unformatted and it is not
    /// locked; false for the phone memory, the MegaSIM and an unknown number.
    /// Never builds the table.
    static bool isUnformattedParti(int parti);
    /// True when the card is neither locked nor unformatted and the driver
    /// reports no formatted file system on it; false for the phone memory, the
    /// MegaSIM and an unknown number. Never builds the table.
    static bool isInvalidParti(int parti);

    /// @}

    /// \name Partitions by device type or device name
    /// Device types as getDeviceCardType() gives them: 0 phone memory, 1
    /// MegaSIM, 2 memory card.
    /// @{

    /// Number of the phone memory partition, -1 when none. Never builds the
    /// table: -1 before the first scan. phoneNoi is not updated.
    static int getPhoneNoi();
    /// True when a partition of that device type is listed; a card the driver
    /// reports as inserted is listed without a mount table record. False for
    /// any other number. Initialises.
    static bool isDeviceMounted(int deviceType);
    /// True when a partition has exactly that device name, byte for byte as
    /// getPartiDevName() gives it (a mount folder is no device name); false
    /// for null. Initialises.
    static bool isDeviceMounted(const char *deviceName);
    /// True when a memory card is listed, mounted or only reported as inserted
    /// by the driver. The argument is ignored. Initialises.
    static bool hasMMCSDCard(bool unused = false);
    /// The mount folder of the first partition of the device type, as
    /// getPartiName() gives it. Null for any other type, when none is listed,
    /// and when its number lies beyond getPartiActNumber() (more than 12
    /// partitions). The partition is looked up before the table is built, so
    /// the answer is null before the first scan; then instance() runs, which
    /// rescans when initMemFlag is cleared, and the path is that of the number
    /// found before it: when the rescan renumbered the partitions, it is
    /// whichever partition has that number now.
    static QString getMountedPath(int deviceType);
    /// The memory card's mount folder: getMountedPath(2) after instance(), so
    /// it builds the table first and rescans it when initMemFlag is cleared.
    /// Null when no card is listed or the listed card has no mount folder.
    static QString getDefaultMMCSDPartition();

    /// @}

    /// \name File types, from the name alone
    /// The fixed lists compare the lower-cased text after the last "." of the
    /// whole name (the whole name when it has none; a dot in a folder name
    /// counts, a trailing dot gives an empty text that no list holds); letters
    /// beyond ASCII are lowered by Unicode's rules, which may change the
    /// text's length. They read no file and ask nothing of the platform. The
    /// registry's kinds ask the MIME registry about that text as written, case
    /// kept, once per call, nothing cached.
    /// @{

    /// Whether the name's extension is that of a picture the phone shows as a
    /// thumbnail: pic bmp xpm png wbmp jpg gif jpeg jpe. The one direction
    /// only: every name isJpgExtension() takes is a thumbnail, but "photo.jpe"
    /// is a thumbnail and not a JPG.
    static bool isThumbExtension(const QString &name);
    /// Whether the name's extension is jpg or jpeg, not jpe: on purpose, as on
    /// the phone, although isThumbExtension() takes jpe as a picture and the
    /// registry may well give it the JPEG type.
    static bool isJpgExtension(const QString &name);
    /// Whether the name's extension is gnx: a light pattern.
    static bool isGlintExtension(const QString &name);
    /// Whether the name's extension is url or vbm: a bookmark.
    static bool isBookMarkExtension(const QString &name);
    /// True when the registry's MIME type begins with "audio", case ignored,
    /// blanks before it skipped; false for a text the registry does not know.
    static bool isAudioExtension(const QString &name);
    /// True when the registry's MIME type begins with "video", as
    /// isAudioExtension() asks it.
    static bool isVideoExtension(const QString &name);
    /// True when the registry's MIME type begins with "image", as
    /// isAudioExtension() asks it.
    static bool isImageExtension(const QString &name);
    /// Audio preloaded with the phone; the user's own audio never qualifies.
    /// Preloaded means a path other than /usr/data_resource that begins with
    /// those characters (a "/" after them is not needed); audio, as
    /// isAudioExtension() tells, asked only for such a path. Whether the file
    /// exists is not looked at.
    static bool canAsRingTone(const QString &path);

    /// @}

    /// \name Icons
    /// @{

    /// The icon file name for a file: big (thumbnail) or small (list row).
    /// Never empty: a handled type of no known kind gets a generic icon. The
    /// first rule that holds decides: the registry's audio, picture or video
    /// type; a Java archive or descriptor (jar, jad); an extension that no
    /// application handles (the "unsupported" icon); a partial (cmd) or a
    /// complete (cim) download, by the file name's own extension; a voice
    /// record (amr), text (txt), bookmark (url, vbm), saved conversation (im),
    /// light pattern (gnx), contact (vcf) or calendar (vcs). Asks the MIME
    /// registry up to four times (three types, one handler), reads no file.
    static QString getFileIconByType(const QString &name, bool big);
    /// The picture of an icon file name, loaded from the platform once per
    /// process; a null picture when the platform has none. Kept for the life
    /// of the process, a missing one too, so that each name is asked of the
    /// platform's icon store once; initMem() loads the standard ones. Pictures
    /// need a QGuiApplication.
    static QPixmap getIcon(const QString &iconName);

    /// @}

    /// \name Folders, as a listing shows them
    /// Any folder: a fixed folder, preloaded content, a storage's mount folder
    /// or a folder inside one, or an ordinary folder. Fields and outputs that
    /// an answer does not concern keep what the caller put there. The first of
    /// them reads the folder structure file, which makes the key words'
    /// folders (see TAMBRO_FixedFolder::initialize), and builds the partition
    /// table; after that they read no file unless they say so.
    /// @{

    /// The icons and name of a folder: a fixed folder's own (with phoneIcon,
    /// the phone memory's picture for both sizes); a storage's short name for
    /// its mount folder, else the last path component, with the card's or the
    /// MegaSIM's icons (the phone memory's folders keep the caller's icons);
    /// any other folder its last component and the generic folder icons.
    /// With phoneIcon the big icon is deliberately the phone memory's small
    /// picture, fm_phone_mem_small.gif, as on the phone: there is no big one.
    /// Any folder under the root counts as fixed, with the generic icons and
    /// its last component where the structure names none; a storage's folder
    /// is one whose path begins with the characters of its mount folder.
    static void getFolderRes(const QString &path, _TAMBRO_FOLDER_RES &res, bool phoneIcon);
    /// The folder under which a folder is listed, and its name: a preloaded
    /// folder's from the structure, the root for a storage's mount folder, else
    /// the real parent (the root when the folder does not exist). The name is
    /// the one getFolderRes() gives the parent. Looks at the disk: whether the
    /// folder and a mount folder equal to it exist.
    static void getFolderParent(const QString &path, QString &parentPath, QString &parentName);
    /// The name under which a folder or file is listed: a fixed folder's
    /// display name, a storage's short name, else the last path component.
    /// Only an existing folder gets a display name (one look at the disk); an
    /// empty path gives an empty name.
    static QString getShortName(const QString &path);
    /// The location line: the root's display name, then each level's display
    /// name, joined by "/", up to the first level without one. A folder on the
    /// card or the MegaSIM shows the root's display name, the storage's short
    /// name and then the rest of its path as it stands; a path outside the
    /// root, the preloaded content and those storages gives an empty line, an
    /// empty path a null one.
    static QString getDisplayPathName(const QString &path);
    /// The number of "/" in the path, a trailing one not counted: 0 for a
    /// path without one and for "/", 2 for "/a/b" and "/a/b/". Text only.
    static int getFolderLevel(const QString &path);
    /// The number of the partition whose existing mount folder the path is; 0
    /// for none. Exactly the mount folder: with a trailing "/" it is another
    /// path. Initialises the partition table, and looks at the disk for a
    /// mount folder equal to the path.
    static int isPartiName(const QString &path);
    /// The number of the first partition whose mount folder occurs in the path
    /// (its mount folder included); -4 for preloaded content; 0 for none.
    /// Anywhere in the path, not only at its start, as on the phone:
    /// "/x/mmc/megasim1/y" is on the MegaSIM. Preloaded content is told first,
    /// by the path's first characters, as TAMBRO_FixedFolder::isPreloadFolder
    /// does. Initialises the partition table; reads no file.
    static int isPartiSubFolder(const QString &path);
    /// The key word "image"'s folder, as TAMBRO_FixedFolder::getPathByKey
    /// gives it (made when missing); its display name goes to *name when name
    /// is not null.
    static QString myPhoto(QString *name);
    /// The key word "voice"'s folder, as myPhoto() gives "image"'s.
    static QString myVoice(QString *name);
    /// The key word "video"'s folder, as myPhoto() gives "image"'s.
    static QString myVideo(QString *name);

    /// @}

    /// \name Sizes, dates and durations, as text
    /// Sizes are written in bytes below 1024, else in KB or MB, never larger
    /// (1 GiB is "1024.0 MB"): MB as soon as the KB value rounded to the
    /// decimals asked would reach 1024. Bytes never get decimals. A negative
    /// size is bytes too. The templates are the library's translated texts.
    /// These read nothing and ask nothing of the platform.
    /// @{

    /// "3 files selected - Total 2.0 KB": the count, then the size with 1 decimal.
    static QString getMultiSelectTitle(double size, unsigned count);
    /// "2.0 KB": the size with 1 decimal, as a details view shows it.
    static QString getDetailViewSizeStr(double size);
    /// The size with the decimals asked, which also choose the unit. The text
    /// has at most 17 decimals (all a double carries) however many are asked,
    /// and 6 when a negative number is asked, as printf writes. The unit still
    /// follows the decimals asked: a negative number rounds the KB value to
    /// tens, hundreds and so on, so that from -7 on a size of gigabytes stays
    /// in KB, and so does every size from 309 decimals on.
    static QString uintSizeToGbMbStr(double size, int decimals);
    /// "2007-03-05 09:04:00"; a year below 1000 is padded with blanks.
    /// In the date and time's own time zone. An invalid one gives
    /// "   0-00-00 -1:-1:-1".
    static QString convertDateTime(QDateTime dateTime);
    /// "mm:ss" below one hour, else "h...h:mm:ss", to the nearest second. The
    /// arithmetic is unsigned 32-bit, as on the phone: a negative duration is
    /// taken as its unsigned value plus the half second of the rounding, which
    /// wraps, so -1 to -500 read "00:00" and -501 reads "1193:02:47".
    static QString convertTime(int milliseconds);

    /// @}

    /// \name Disk and folder usage, from the file system on every call
    /// The walks follow no symbolic link and count only what the folder
    /// listing reports as a regular file or a folder; folders more than 32
    /// levels deep (as getFolderLevel counts) are left out. A link at the path
    /// itself is followed. Nothing is cached: a walk reads every folder of the
    /// tree once, and getSize() also asks the size of every regular file.
    /// @{

    /// The space of the storage holding the path (a preloaded folder's is the
    /// file manager's root's), in bytes. False, and both 0, when it cannot be
    /// asked. One statfs() call. The block size is taken as signed and the
    /// block counts as unsigned 32-bit numbers, as the phone's file system
    /// reports them: a storage of 2^32 blocks or more reads too small.
    static bool getDiskSize(const QString &path, double &available, double &total);
    /// The bytes of a file (32 bits, as QFileInfo's size is cut), or of all the
    /// regular files in a folder tree, hidden ones included; 0 for anything else.
    /// A file of 5 GiB alone is 1 GiB, in a folder it counts whole.
    static quint64 getSize(const QString &path);
    /// The visible files and folders in a folder, and with recursive in its
    /// whole tree; a folder's listing ends at its first subfolder that is too
    /// deep (counted, not entered). Zero counts for anything but a folder.
    /// Names that begin with "." are neither counted nor entered.
    static TAMBRO_ITEM_COUNT getNum(const QString &path, bool recursive);
    /// True when the owner may not both read and write the path; false when it
    /// does not exist. Group, others and the effective user are not considered.
    /// A link is followed. One stat() call.
    static bool isReadOnly(const QString &path);
    /// Lets everyone read, write and execute the path (mode 0777; a link's
    /// target). Always true, also when the change failed or the path does
    /// not exist.
    static bool chmodW(const QString &path);

    /// @}

    /// \name Recipients
    /// Single characters are looked at, no grammar; text only.
    /// @{

    /// Could be a phone number: digits 0-9, "-", a "+" first only and "."
    /// anywhere but last; the empty text too. Only the ASCII digits count.
    static bool isMobile(QString text);
    /// Could be an e-mail address: exactly one "@", neither first nor last.
    /// Nothing else is looked at: blanks pass.
    static bool isEmail(QString text);

    /// @}

    /// \name Settings file and feature switches
    /// @{

    /// The file manager's settings file, "setup/kiv_tambro.cfg" under
    /// KIV_APP_WRITE_PATH, read afresh on every call; its folder is made
    /// (mode 0777) when missing and the file's mode is set to 0777.
    /// The environment variable is what is read afresh, trimmed; the file is
    /// neither made nor read. Only the setup folder is made, not its parents,
    /// and a symbolic link in its place or the file's is left as it is. With
    /// KIV_APP_WRITE_PATH unset the answer is "/setup/kiv_tambro.cfg", at the
    /// file system's root.
    static QString getConfigFile();
    /// Whether the phone offers blog posting by MMS: bit 149 of its feature
    /// table, asked once per process at the first call and kept. False when
    /// the table cannot answer, which is not asked again either.
    static bool getMMSBlogFlexFlag();
    /// Whether the phone offers the blog centre: feature bit 514, asked as
    /// getMMSBlogFlexFlag() asks its own.
    static bool getBlogCenterFlexFlag();
    /// Whether the phone offers e-mail: feature bit 205, asked as
    /// getMMSBlogFlexFlag() asks its own.
    static bool getEmailFlexFlag();
    /// Whether the phone offers postcards: feature bit 212, asked as
    /// getMMSBlogFlexFlag() asks its own.
    static bool getPostcardFlexFlag();

    /// @}

private:
    TAMBRO_Global() = default;
};

KIVTAMBRO_BEGIN_C_EXPORTS
/// TAMBRO_Global::isDeviceMounted(int) as 1 or 0, for callers without the
/// class interface. Despite its name the argument is a device type, as in
/// isDeviceMounted(int), not a partition number. Initialises the partition
/// table.
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyNum(int deviceType);
/// TAMBRO_Global::isDeviceMounted(const char *) as 1 or 0: 0 for null.
/// Initialises the partition table.
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyName(const char *deviceName);
/// TAMBRO_Global::getDefaultMMCSDPartition(): the memory card's mount folder,
/// null without one. Builds the partition table first.
KIVTAMBRO_EXPORT QString TAMBRO_GetDefaultMMCSDPartition();
KIVTAMBRO_END_C_EXPORTS
