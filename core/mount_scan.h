// Fills the partition table from the mount table and the memory card driver.
#pragma once

#include <QByteArray>

namespace Tambro {

class PartitionTable;

// Mount points of the three kinds of storage.
inline constexpr char PhoneMountPoint[] = "/kivlocal/download/tambro";
inline constexpr char CardMountPoint[] = "/mmc/mmca1";
inline constexpr char MegaSimMountPoint[] = "/mmc/megasim1";

inline constexpr char MountTablePath[] = "/etc/mtab";
// A phone's mount table holds a few dozen lines; a larger file is refused
// whole, with a warning, as is anything but a regular file (a FIFO would
// block the scan for ever).
inline constexpr qint64 MaxMountTableBytes = 1 << 20;

// Rebuilds the table from "/etc/mtab" and the card driver's report.
void scanMounts(PartitionTable &table);

// Adds the partitions that the records of a mount table's text name.
void readMountRecords(const QByteArray &mountTable, PartitionTable &table);

} // namespace Tambro
