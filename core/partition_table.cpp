#include "partition_table.h"

#include <algorithm>
#include <cstring>

namespace Tambro {

namespace {

// Copies at most N-1 bytes and keeps the field NUL-terminated.
template<size_t N>
void copyField(char (&field)[N], const QByteArray &text)
{
    std::memset(field, 0, N);
    std::memcpy(field, text.constData(), std::min<size_t>(size_t(text.size()), N - 1));
}

} // namespace

void PartitionInfo::setDisplayName(const QString &name) { copyField(displayName, name.toUtf8()); }
void PartitionInfo::setDeviceName(const QByteArray &name) { copyField(deviceName, name); }
void PartitionInfo::setMountDir(const QByteArray &dir) { copyField(mountDir, dir); }
void PartitionInfo::setLabel(const QByteArray &text) { copyField(label, text); }

void PartitionTable::insert(const PartitionInfo &entry)
{
    const auto at = std::find_if(m_entries.begin(), m_entries.end(), [&](const PartitionInfo &e) {
        return e.deviceType >= entry.deviceType;
    });
    m_entries.insert(at, entry);
}

void PartitionTable::renumber()
{
    int32_t number = 0;
    for (PartitionInfo &entry : m_entries)
        entry.number = ++number;
}

const PartitionInfo *PartitionTable::findByNumber(int number) const
{
    for (const PartitionInfo &entry : m_entries) {
        if (entry.number == number)
            return &entry;
    }
    return nullptr;
}

const PartitionInfo *PartitionTable::findByType(int deviceType) const
{
    for (const PartitionInfo &entry : m_entries) {
        if (entry.deviceType == deviceType)
            return &entry;
    }
    return nullptr;
}

const PartitionInfo *PartitionTable::findByDeviceName(const char *deviceName) const
{
    for (const PartitionInfo &entry : m_entries) {
        if (std::strcmp(entry.deviceName, deviceName) == 0)
            return &entry;
    }
    return nullptr;
}

int PartitionTable::numberOfType(int deviceType) const
{
    const PartitionInfo *entry = findByType(deviceType);
    return entry ? entry->number : -1;
}

PartitionTable *&partitionTable()
{
    static PartitionTable *table = nullptr;
    return table;
}

} // namespace Tambro
