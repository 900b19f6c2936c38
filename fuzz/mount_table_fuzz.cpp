// Feeds arbitrary bytes to the partition scan as if they were /etc/mtab.
#include "core/mount_scan.h"
#include "core/partition_table.h"

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    if (size == 0)
        return 0;
    FILE *mountTable = fmemopen(const_cast<uint8_t *>(data), size, "r");
    if (!mountTable)
        return 0;
    Tambro::PartitionTable table;
    Tambro::readMountRecords(mountTable, table);
    fclose(mountTable);
    table.renumber();
    return 0;
}
