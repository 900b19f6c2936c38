// The memory card's state on this machine: what UDisks2 on the system bus
// reports of the block device mounted at the card's folder, or, when UDisks2
// is not there, what the kernel's mount table and sysfs tell; and the card
// driver's information record made from it.
#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

namespace KivHost {

struct CardState
{
    bool inserted = false;
    QByteArray label; // the volume label, UTF-8
    bool writeProtected = false;
    bool locked = false;
    bool unformatted = false;
    bool invalid = false;
};

// What UDisks2 reports of one block device and of the drive it belongs to.
// Neither Device nor IdType is needed: the usage and the interfaces decide.
struct BlockReport
{
    bool readOnly = false; // Block.ReadOnly: the device itself (sysfs ro)
    QString idLabel;
    QString idUsage; // "filesystem", "crypto", "raid", "other" or empty
    quint64 size = 0;
    bool hasFilesystem = false; // the Filesystem interface: UDisks2 can mount it
    QByteArrayList mountPoints;
    bool encrypted = false; // the Encrypted interface
    bool hasCleartext = false; // Encrypted.CleartextDevice is not "/": unlocked
    bool mediaAvailable = true; // the drive's MediaAvailable; true without a drive
    bool readOnlyMount = false; // mounted read-only, from the kernel's mount table
};

// The card that block is. When several things hold, in this order:
// - no media (the drive says none, or the size is 0, as an empty card reader
//   shows): not inserted, and nothing else is said;
// - locked (encrypted, no cleartext device): neither unformatted nor invalid,
//   since what the volume holds cannot be seen;
// - unformatted (no usage at all) or invalid (a usage this machine cannot
//   mount: "filesystem" without the Filesystem interface, "crypto" without the
//   Encrypted one, "raid", "other", anything unknown), which exclude each
//   other; an unlocked encrypted block is neither: its cleartext device is
//   the card's file system.
// Write protection (ReadOnly or a read-only mount) and the label hold beside
// any of these for an inserted card.
CardState cardStateOf(const BlockReport &block);

// Where the card is looked for, and the roots of /proc and /sys (fixture
// folders in tests).
struct CardPlaces
{
    QString mountFolder;
    QString procRoot = QStringLiteral("/proc");
    QString sysRoot = QStringLiteral("/sys");
    int timeoutMs = 1000; // for the one D-Bus call
};

// The card at places.mountFolder, in this order:
// 1. UDisks2's block whose file system is mounted there;
// 2. else whatever the kernel's mount table has mounted there (a bind mount
//    or a tmpfs is a usable card too), read-only from sysfs or the mount;
// 3. else a card that UDisks2 sees in a drive with removable media but that
//    cannot be mounted (locked, unformatted or invalid), the first by object
//    path; a partitioned card's whole-disk block is not one;
// 4. else not inserted.
// Without UDisks2 on the system bus (no bus, no answer within the timeout, a
// reply of another shape), steps 1 and 3 find nothing. A read-only mount at
// the folder makes the card write-protected whatever found it. A folder that
// is not absolute has no card.
CardState queryCardState(const CardPlaces &places);

// Where UDisks2 reports the memory card mounted: the first mount point (by
// object path) of a file system on a drive with removable media that is not
// one of the system's own. Empty when there is none, or no UDisks2.
QString mountedCardFolder(int timeoutMs = 1000);

// Step 2 alone: the last mount at the folder in procRoot/self/mountinfo.
CardState kernelCardState(const CardPlaces &places);

// Fills the card driver's UTIL_MMCSD_INFO_SIZE-byte record: the write-protected
// and locked bits, unformatted or formatted (neither when invalid or locked),
// and the label, cut to its field without splitting a character and with no
// terminator when it fills the field; every other byte 0. Returns whether a
// card is inserted; with a null record, false and nothing is written.
bool fillCardInfo(const CardState &state, unsigned char *info);

} // namespace KivHost
