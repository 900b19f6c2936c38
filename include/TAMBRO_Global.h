// The library's process-wide utility context: partitions, file types, icons,
// folder resources, formatting and validation, all as static members.
#pragma once

#include "kivtambro_export.h"

#include <QPixmap>
#include <QString>

class AM_MimeRegistry;

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

extern "C" {
// Despite its name the argument is a device type, as in isDeviceMounted(int).
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyNum(int deviceType);
KIVTAMBRO_EXPORT int TAMBRO_IsDeviceMountedbyName(const char *deviceName);
// A toolkit string from a plain function, as the phone's callers expect.
#ifdef __clang__
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wreturn-type-c-linkage"
#endif
KIVTAMBRO_EXPORT QString TAMBRO_GetDefaultMMCSDPartition();
#ifdef __clang__
#pragma clang diagnostic pop
#endif
}
