// Fills the partition table from the mount table and the memory card driver.
#pragma once

#include <cstdio>

namespace Tambro {

class PartitionTable;

// Mount points of the three kinds of storage.
inline constexpr char PhoneMountPoint[] = "/kivlocal/download/tambro";
inline constexpr char CardMountPoint[] = "/mmc/mmca1";
inline constexpr char MegaSimMountPoint[] = "/mmc/megasim1";

// Rebuilds the table from "/etc/mtab" and the card driver's report.
void scanMounts(PartitionTable &table);

// Adds the partitions that the records of an open mount table name.
void readMountRecords(FILE *mountTable, PartitionTable &table);

} // namespace Tambro
