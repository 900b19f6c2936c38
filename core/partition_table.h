// The process-wide table of storage partitions: phone memory, MegaSIM and
// memory card, kept sorted by device type and numbered from 1.
#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>
#include <vector>

namespace Tambro {

enum DeviceType : int32_t { PhoneMemory = 0, MegaSim = 1, MemoryCard = 2 };
enum PartitionStatus : int32_t { Ready = 0, Invalid = 1, Locked = 2, Unformatted = 3 };

// One partition. The text fields have the fixed widths of the phone's
// partition record; longer texts are cut to fit, without notice.
struct PartitionInfo
{
    int32_t number = 0;
    char displayName[128] = {};
    char deviceName[32] = {};
    char mountDir[32] = {};
    char label[12] = {};
    int32_t deviceType = PhoneMemory;
    int32_t status = Ready;
    bool locked = false;
    bool extraFlag = false; // card information byte 0 bit 3; stored only
    bool writeProtected = false;

    void setDisplayName(const QString &name);
    void setDeviceName(const QByteArray &name);
    void setMountDir(const QByteArray &dir);
    void setLabel(const QByteArray &label);
};

class PartitionTable
{
public:
    // Inserts before the first entry of the same or a greater device type,
    // so entries of one type end in reverse order of discovery.
    void insert(const PartitionInfo &entry);
    // Numbers the entries 1, 2, 3... in list order.
    void renumber();

    int count() const { return int(m_entries.size()); }
    const PartitionInfo *findByNumber(int number) const;
    const PartitionInfo *findByType(int deviceType) const;
    const PartitionInfo *findByDeviceName(const char *deviceName) const;
    // Number of the first entry of that type, -1 when none.
    int numberOfType(int deviceType) const;

private:
    std::vector<PartitionInfo> m_entries;
};

// The table of the process, null until the first initMem().
PartitionTable *&partitionTable();

} // namespace Tambro
