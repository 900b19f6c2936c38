// Building the partition table from a mount table's text and the platform's
// answers about the cards. It reads no file and makes no platform call of its
// own, so that every rule can be tried on made-up input in one process.
#pragma once

#include "partition_table.h"

#include <QByteArray>
#include <QString>

namespace Tambro {

// What the build asks the platform, in the order of the mount table's records.
class CardAndSimAnswers
{
public:
    virtual ~CardAndSimAnswers() = default;
    // Fills the card driver's information block (UTIL_MMCSD_INFO_SIZE bytes,
    // zeroed); false when the driver has no report. Asked for every card.
    virtual bool cardInfo(unsigned char *info) const = 0;
    // The MegaSIM's display name; asked for every MegaSIM record.
    virtual QString megaSimName() const = 0;
    // The driver's card status, 1 for an inserted card; asked once, last.
    virtual int cardStatus() const = 0;
};

// The partitions that the mount table's records name, with a card that the
// driver reports as inserted although no record names it, sorted by device
// type and numbered from 1.
PartitionTable buildPartitionTable(const QByteArray &mountTable, const CardAndSimAnswers &platform);

} // namespace Tambro
