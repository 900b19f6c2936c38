// Feeds arbitrary bytes to the partition scan as if they were /etc/mtab.
#include "core/mount_scan.h"
#include "core/partition_table.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray mountTable =
        QByteArray::fromRawData(reinterpret_cast<const char *>(data), qsizetype(size));
    Tambro::PartitionTable table;
    Tambro::readMountRecords(mountTable, table);
    table.renumber();
    // Numbered 1, 2, 3... in device type order, every text field terminated.
    int previousType = Tambro::PhoneMemory;
    for (int number = 1; number <= table.count(); ++number) {
        const Tambro::PartitionInfo *entry = table.findByNumber(number);
        if (!entry || entry->deviceType < previousType
            || strnlen(entry->mountDir, sizeof entry->mountDir) == sizeof entry->mountDir
            || strnlen(entry->label, sizeof entry->label) == sizeof entry->label)
            std::abort();
        previousType = entry->deviceType;
    }
    return 0;
}
