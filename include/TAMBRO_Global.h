// The library's process-wide utility context: partitions, file types, icons,
// folder resources, formatting and validation, all as static members.
#pragma once

#include "kivtambro_export.h"

#include <QDateTime>
#include <QPixmap>
#include <QString>

class AM_MimeRegistry;

// What getNum counted: regular files, then folders.
struct TAMBRO_ITEM_COUNT
{
    quint32 files = 0;
    quint32 folders = 0;
};

// How a folder is shown in a listing.
struct _TAMBRO_FOLDER_RES
{
    QString bigIcon; // thumbnail-size icon file name
    QString smallIcon; // list-size icon file name
    QString displayName;
    QString reserved; // never set by the library: the caller's own
};

class KIVTAMBRO_EXPORT TAMBRO_Global
{
public:
    // --- Context ---------------------------------------------------------

    // The one process-wide object. Builds the partition table on first use.
    static TAMBRO_Global *instance();
    // Builds the partition table and preloads the icons unless initMemFlag is set.
    // The argument is ignored; callers pass 0.
    static void initMem(int unused);
    // The one registry handle of the process, created on first request.
    static AM_MimeRegistry *getAmMimeRegInstance();
    // The file manager's root path.
    static QString getDeviceName();
    // Collation used to sort names: negative, zero or positive.
    static int compareString(const QString &first, const QString &second);

    // Cleared by a client that knows cards came or went: the next
    // initialising query then rescans the partitions.
    static bool initMemFlag;
    // Kept for clients; the library never reads or writes these.
    static int phoneNoi;
    static bool bSetLocaleFlag;
    static bool bmemberPasteCancelFlag;

    // --- Partitions by number (1-based; numbers change on every rescan) ---

    static int getPartiActNumber();
    static QString getPartiName(int parti);
    static QString getPartiShortName(int parti);
    static QString getPartiLabel(int parti);
    static QString getPartiDevName(int parti);
    // 0 phone memory, 1 MegaSIM, 2 memory card; -1 when not found.
    static int getDeviceCardType(int parti);
    static bool isPhone(int parti);
    static bool isCards(int parti);
    static bool writeProtected(int parti);
    static bool isCardLocked(int parti);
    static bool isUnformattedParti(int parti);
    static bool isInvalidParti(int parti);

    // --- Partitions by device type or device name --------------------------

    // Number of the phone memory partition, -1 when none.
    static int getPhoneNoi();
    // True when a partition of that device type is listed.
    static bool isDeviceMounted(int deviceType);
    // True when a partition has exactly that device name.
    static bool isDeviceMounted(const char *deviceName);
    static bool hasMMCSDCard(bool unused = false);
    static QString getMountedPath(int deviceType);
    static QString getDefaultMMCSDPartition();

    // --- File types, from the name alone ------------------------------------
    //
    // The fixed lists compare the lower-cased text after the last "." of the
    // whole name (the whole name when it has none); the registry's kinds ask
    // the MIME registry about that text as written.

    static bool isThumbExtension(const QString &name); // pic bmp xpm png wbmp jpg gif jpeg jpe
    static bool isJpgExtension(const QString &name); // jpg jpeg, not jpe
    static bool isGlintExtension(const QString &name); // gnx: light patterns
    static bool isBookMarkExtension(const QString &name); // url vbm
    // The registry's MIME type begins with "audio", "video" or "image".
    static bool isAudioExtension(const QString &name);
    static bool isVideoExtension(const QString &name);
    static bool isImageExtension(const QString &name);
    // Audio preloaded with the phone; the user's own audio never qualifies.
    static bool canAsRingTone(const QString &path);

    // --- Icons --------------------------------------------------------------

    // The icon file name for a file: big (thumbnail) or small (list row).
    // Never empty: a handled type of no known kind gets a generic icon.
    static QString getFileIconByType(const QString &name, bool big);
    // The picture of an icon file name, loaded from the platform once per
    // process; a null picture when the platform has none.
    static QPixmap getIcon(const QString &iconName);

    // --- Folders, as a listing shows them ----------------------------------
    //
    // Any folder: a fixed folder, preloaded content, a storage's mount folder
    // or a folder inside one, or an ordinary folder. Fields and outputs that
    // an answer does not concern keep what the caller put there.

    // The icons and name of a folder: a fixed folder's own (with phoneIcon,
    // the phone memory's picture for both sizes); a storage's short name for
    // its mount folder, else the last path component, with the card's or the
    // MegaSIM's icons (the phone memory's folders keep the caller's icons);
    // any other folder its last component and the generic folder icons.
    static void getFolderRes(const QString &path, _TAMBRO_FOLDER_RES &res, bool phoneIcon);
    // The folder under which a folder is listed, and its name: a preloaded
    // folder's from the structure, the root for a storage's mount folder, else
    // the real parent (the root when the folder does not exist).
    static void getFolderParent(const QString &path, QString &parentPath, QString &parentName);
    // The name under which a folder or file is listed: a fixed folder's
    // display name, a storage's short name, else the last path component.
    static QString getShortName(const QString &path);
    // The location line: the root's display name, then each level's display
    // name, joined by "/", up to the first level without one. A folder on the
    // card or the MegaSIM shows the storage's short name followed by the rest
    // of its path; a path outside the root, the preloaded content and those
    // storages gives an empty line, an empty path a null one.
    static QString getDisplayPathName(const QString &path);
    // The number of "/" in the path, a trailing one not counted.
    static int getFolderLevel(const QString &path);
    // The number of the partition whose existing mount folder the path is; 0
    // for none.
    static int isPartiName(const QString &path);
    // The number of the first partition whose mount folder occurs in the path
    // (its mount folder included); -4 for preloaded content; 0 for none.
    static int isPartiSubFolder(const QString &path);
    // The key words' folders ("image", "voice", "video"); their display name
    // goes to *name when name is not null.
    static QString myPhoto(QString *name);
    static QString myVoice(QString *name);
    static QString myVideo(QString *name);

    // --- Sizes, dates and durations, as text -------------------------------
    //
    // Sizes are written in bytes below 1024, else in KB or MB, never larger
    // (1 GiB is "1024.0 MB"): MB as soon as the KB value rounded to the
    // decimals asked would reach 1024. Bytes never get decimals.

    // "3 files selected - Total 2.0 KB": the count, then the size with 1 decimal.
    static QString getMultiSelectTitle(double size, unsigned count);
    // "2.0 KB": the size with 1 decimal, as a details view shows it.
    static QString getDetailViewSizeStr(double size);
    // The size with the decimals asked, which also choose the unit. The text
    // has at most 17 decimals (all a double carries) however many are asked,
    // and 6 when a negative number is asked, as printf writes.
    static QString uintSizeToGbMbStr(double size, int decimals);
    // "2007-03-05 09:04:00"; a year below 1000 is padded with blanks.
    static QString convertDateTime(QDateTime dateTime);
    // "mm:ss" below one hour, else "h...h:mm:ss", to the nearest second. The
    // arithmetic is unsigned 32-bit, as on the phone: a negative duration is
    // taken as its unsigned value plus the half second of the rounding, which
    // wraps, so -1 to -500 read "00:00" and -501 reads "1193:02:47".
    static QString convertTime(int milliseconds);

    // --- Disk and folder usage, from the file system on every call ----------
    //
    // The walks follow no symbolic link and count only what the folder
    // listing reports as a regular file or a folder; folders more than 32
    // levels deep (as getFolderLevel counts) are left out.

    // The space of the storage holding the path (a preloaded folder's is the
    // file manager's root's), in bytes. False, and both 0, when it cannot be
    // asked.
    static bool getDiskSize(const QString &path, double &available, double &total);
    // The bytes of a file (32 bits, as QFileInfo's size is cut), or of all the
    // regular files in a folder tree, hidden ones included; 0 for anything else.
    static quint64 getSize(const QString &path);
    // The visible files and folders in a folder, and with recursive in its
    // whole tree; a folder's listing ends at its first subfolder that is too
    // deep (counted, not entered). Zero counts for anything but a folder.
    static TAMBRO_ITEM_COUNT getNum(const QString &path, bool recursive);
    // True when the owner may not both read and write the path; false when it
    // does not exist. Group, others and the effective user are not considered.
    static bool isReadOnly(const QString &path);
    // Lets everyone read, write and execute the path. Always true.
    static bool chmodW(const QString &path);

    // --- Recipients ------------------------------------------------------------

    // Could be a phone number: digits 0-9, "-", a "+" first only and "."
    // anywhere but last; the empty text too.
    static bool isMobile(QString text);
    // Could be an e-mail address: exactly one "@", neither first nor last.
    static bool isEmail(QString text);

    // --- Settings file and feature switches ---------------------------------

    // The file manager's settings file, "setup/kiv_tambro.cfg" under
    // KIV_APP_WRITE_PATH, read afresh on every call; its folder is made
    // (mode 0777) when missing and the file's mode is set to 0777.
    static QString getConfigFile();
    // Whether the phone offers a service, asked of its feature table once
    // per process: blog posting by MMS (bit 149), the blog centre (514),
    // e-mail (205) and postcards (212). False when the table cannot answer.
    static bool getMMSBlogFlexFlag();
    static bool getBlogCenterFlexFlag();
    static bool getEmailFlexFlag();
    static bool getPostcardFlexFlag();

private:
    TAMBRO_Global() = default;
};

KIVTAMBRO_BEGIN_C_EXPORTS
// Despite its name the argument is a device type, as in isDeviceMounted(int).
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyNum(int deviceType);
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyName(const char *deviceName);
KIVTAMBRO_EXPORT QString TAMBRO_GetDefaultMMCSDPartition();
KIVTAMBRO_END_C_EXPORTS
