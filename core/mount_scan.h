// Fills the partition table from the phone's mount table and card driver.
#pragma once

#include <QtGlobal>

namespace Tambro {

class PartitionTable;

// A phone's mount table holds a few dozen lines; a larger file is refused
// whole, with a warning, as is anything but a regular file (a FIFO would
// block the scan for ever).
inline constexpr qint64 MaxMountTableBytes = 1 << 20;

// Rebuilds the table from the mount table and the card driver's report.
void scanMounts(PartitionTable &table);

} // namespace Tambro
