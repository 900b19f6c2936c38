#include "mount_scan.h"

#include "megasim_name.h"
#include "partition_table.h"
#include "regular_file.h"
#include "translation.h"

#include <UTIL_MMCSD.h>

#include <QLoggingCategory>

#include <cstring>
#include <mntent.h>
#include <vector>

Q_LOGGING_CATEGORY(lcMounts, "kivtambro.partitions", QtWarningMsg)

namespace Tambro {

namespace {

constexpr char CardDriverDevice[] = "/dev/mmca";
constexpr int CardLabelOffset = 76;
constexpr int CardLabelLength = 11;

// Card information byte 0 and byte 2 flags.
constexpr unsigned char CardWriteProtected = 0x01;
constexpr unsigned char CardLocked = 0x02;
constexpr unsigned char CardExtraFlag = 0x08;
constexpr unsigned char CardUnformatted = 0x02;
constexpr unsigned char CardFormatted = 0x04;

QString memoryCardName()
{
    return translate("TAMBRO_Global", "TXT_RID_LIST_A_MEMORY_CARD", "Memory Card");
}

PartitionStatus cardStatus(unsigned char flags0, unsigned char flags2)
{
    if (flags0 & CardLocked)
        return Locked;
    if (flags2 & CardUnformatted)
        return Unformatted;
    return (flags2 & CardFormatted) ? Ready : Invalid;
}

// A memory card entry from the driver's report; false when the driver has none.
bool addCardEntry(PartitionTable &table, const QByteArray &deviceName, const QByteArray &mountDir)
{
    unsigned char info[UTIL_MMCSD_INFO_SIZE] = {};
    if (UTIL_GetMMCSDInfo(info, CardDriverDevice) == 0)
        return false;

    // The volume label goes to the label field only; the card is always
    // shown as "Memory Card", whatever its label says.
    const auto *labelBytes = reinterpret_cast<const char *>(info + CardLabelOffset);
    PartitionInfo entry;
    entry.setDisplayName(memoryCardName());
    entry.setDeviceName(deviceName);
    entry.setMountDir(mountDir);
    entry.setLabel(QByteArray(labelBytes, int(strnlen(labelBytes, CardLabelLength))));
    entry.deviceType = MemoryCard;
    entry.status = cardStatus(info[0], info[2]);
    entry.locked = info[0] & CardLocked;
    entry.extraFlag = info[0] & CardExtraFlag;
    entry.writeProtected = info[0] & CardWriteProtected;
    table.insert(entry);
    return true;
}

// Phone memory and MegaSIM entries: their label is the mount point's start.
void addFixedEntry(PartitionTable &table, DeviceType type, const QString &displayName,
                   const QByteArray &deviceName, const QByteArray &mountDir)
{
    PartitionInfo entry;
    entry.setDisplayName(displayName);
    entry.setDeviceName(deviceName);
    entry.setMountDir(mountDir);
    entry.setLabel(mountDir);
    entry.deviceType = type;
    table.insert(entry);
}

} // namespace

void readMountRecords(const QByteArray &text, PartitionTable &table)
{
    if (text.isEmpty())
        return;
    FILE *mountTable = fmemopen(const_cast<char *>(text.constData()), size_t(text.size()), "r");
    if (!mountTable)
        return;
    // As long as the whole text: the reader cuts a line at the buffer's end.
    std::vector<char> buffer(size_t(text.size()) + 2);
    bool phoneListed = false;
    mntent record;
    while (getmntent_r(mountTable, &record, buffer.data(), int(buffer.size()))) {
        const QByteArray device = record.mnt_fsname;
        const QByteArray dir = record.mnt_dir;
        // Only the first record of the phone area counts.
        if (!phoneListed && dir == PhoneMountPoint) {
            addFixedEntry(table, PhoneMemory,
                          translate("TAMBRO_Global", "TXT_RID_AIA_MY_FILES", "My Files"), device,
                          dir);
            phoneListed = true;
        } else if (dir == CardMountPoint) {
            addCardEntry(table, device, dir);
        } else if (dir == MegaSimMountPoint) {
            addFixedEntry(table, MegaSim, readMegaSimName(), device, dir);
        }
    }
    endmntent(mountTable);
}

void scanMounts(PartitionTable &table)
{
    table.clear();
    const FileContent mountTable =
        readRegularFile(QString::fromLatin1(MountTablePath), MaxMountTableBytes);
    if (mountTable.status == FileContent::Read)
        readMountRecords(mountTable.data, table);
    else if (!mountTable.problem.isEmpty())
        qCWarning(lcMounts).noquote() << "the mount table" << MountTablePath << mountTable.problem
                                      << "and is not read: no storage is listed from it";

    // A card the driver reports as inserted is listed even when not mounted.
    if (UTIL_GetMMCSDStatus() == 1 && !table.findByType(MemoryCard))
        addCardEntry(table, QByteArray(), QByteArray());
    table.renumber();
}

} // namespace Tambro
