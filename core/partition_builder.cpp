#include "partition_builder.h"

#include "translation.h"

#include <KIV_Paths.h>
#include <UTIL_MMCSD.h>

#include <cstring>
#include <mntent.h>
#include <vector>

namespace Tambro {

namespace {

PartitionStatus cardStatus(unsigned char cardFlags, unsigned char formatFlags)
{
    if (cardFlags & UTIL_MMCSD_LOCKED)
        return Locked;
    if (formatFlags & UTIL_MMCSD_UNFORMATTED)
        return Unformatted;
    return (formatFlags & UTIL_MMCSD_FORMATTED) ? Ready : Invalid;
}

class Builder
{
public:
    explicit Builder(const CardAndSimAnswers &platform) : m_platform(platform) {}

    void addRecord(const QByteArray &device, const QByteArray &dir);
    PartitionTable finish();

private:
    bool addCard(const QByteArray &device, const QByteArray &dir);
    void addFixed(DeviceType type, const QString &displayName, const QByteArray &device,
                  const QByteArray &dir);

    const CardAndSimAnswers &m_platform;
    PartitionTable m_table;
    bool m_phoneListed = false;
};

void Builder::addRecord(const QByteArray &device, const QByteArray &dir)
{
    // Only the first record of the phone area counts.
    if (!m_phoneListed && dir == KivPaths::PhoneMemory) {
        addFixed(PhoneMemory, translate("TAMBRO_Global", "TXT_RID_AIA_MY_FILES", "My Files"),
                 device, dir);
        m_phoneListed = true;
    } else if (dir == KivPaths::MemoryCard) {
        addCard(device, dir);
    } else if (dir == KivPaths::MegaSim) {
        addFixed(MegaSim, m_platform.megaSimName(), device, dir);
    }
}

PartitionTable Builder::finish()
{
    // A card the driver reports as inserted is listed even when not mounted.
    if (m_platform.cardStatus() == 1 && !m_table.findByType(MemoryCard))
        addCard(QByteArray(), QByteArray());
    m_table.renumber();
    return std::move(m_table);
}

// A memory card entry from the driver's report; false when the driver has none.
bool Builder::addCard(const QByteArray &device, const QByteArray &dir)
{
    unsigned char info[UTIL_MMCSD_INFO_SIZE] = {};
    if (!m_platform.cardInfo(info))
        return false;
    // The volume label goes to the label field only; the card is always
    // shown as "Memory Card", whatever its label says.
    const auto *labelBytes = reinterpret_cast<const char *>(info + UTIL_MMCSD_LABEL_OFFSET);
    const unsigned char cardFlags = info[UTIL_MMCSD_CARD_FLAGS_BYTE];
    PartitionInfo entry;
    entry.setDisplayName(translate("TAMBRO_Global", "TXT_RID_LIST_A_MEMORY_CARD", "Memory Card"));
    entry.setDeviceName(device);
    entry.setMountDir(dir);
    entry.setLabel(QByteArray(labelBytes, int(strnlen(labelBytes, UTIL_MMCSD_LABEL_LENGTH))));
    entry.deviceType = MemoryCard;
    entry.status = cardStatus(cardFlags, info[UTIL_MMCSD_FORMAT_FLAGS_BYTE]);
    entry.locked = cardFlags & UTIL_MMCSD_LOCKED;
    entry.extraFlag = cardFlags & UTIL_MMCSD_EXTRA_FLAG;
    entry.writeProtected = cardFlags & UTIL_MMCSD_WRITE_PROTECTED;
    m_table.insert(entry);
    return true;
}

// Phone memory and MegaSIM entries: their label is the mount point's start.
void Builder::addFixed(DeviceType type, const QString &displayName, const QByteArray &device,
                       const QByteArray &dir)
{
    PartitionInfo entry;
    entry.setDisplayName(displayName);
    entry.setDeviceName(device);
    entry.setMountDir(dir);
    entry.setLabel(dir);
    entry.deviceType = type;
    m_table.insert(entry);
}

} // namespace

PartitionTable buildPartitionTable(const QByteArray &text, const CardAndSimAnswers &platform)
{
    Builder builder(platform);
    // The system's reader, on the text in memory.
    FILE *mountTable = text.isEmpty()
        ? nullptr
        : fmemopen(const_cast<char *>(text.constData()), size_t(text.size()), "r");
    if (mountTable) {
        // As long as the whole text: the reader cuts a line at the buffer's end.
        std::vector<char> buffer(size_t(text.size()) + 2);
        mntent record;
        while (getmntent_r(mountTable, &record, buffer.data(), int(buffer.size())))
            builder.addRecord(record.mnt_fsname, record.mnt_dir);
        endmntent(mountTable);
    }
    return builder.finish();
}

} // namespace Tambro
