// Questions about the partition table. Which queries build the table first
// and which expect it built is part of the interface and kept as it is.
#include "TAMBRO_Global.h"

#include "partition_table.h"

using Tambro::PartitionInfo;
using Tambro::partitionTable;

namespace {

constexpr int MaxPartitions = 12;

// The entry of a partition number, without building the table.
const PartitionInfo *entryOf(int parti)
{
    return partitionTable() ? partitionTable()->findByNumber(parti) : nullptr;
}

const PartitionInfo *initialisedEntryOf(int parti)
{
    TAMBRO_Global::initMem(0);
    return entryOf(parti);
}

void initialiseIfAbsent()
{
    if (!partitionTable())
        TAMBRO_Global::initMem(0);
}

bool hasStatus(int parti, Tambro::PartitionStatus status)
{
    const PartitionInfo *entry = parti >= 1 ? entryOf(parti) : nullptr;
    return entry && entry->status == status;
}

bool hasType(int parti, int deviceType)
{
    const PartitionInfo *entry = entryOf(parti);
    return entry && entry->deviceType == deviceType;
}

const PartitionInfo *entryOfType(int deviceType)
{
    return partitionTable() ? partitionTable()->findByType(deviceType) : nullptr;
}

} // namespace

int TAMBRO_Global::getPartiActNumber()
{
    initMem(0);
    // No table although initialised: a client set initMemFlag before any scan.
    const int count = partitionTable() ? partitionTable()->count() : 0;
    return (count >= 1 && count <= MaxPartitions) ? count : 0;
}

QString TAMBRO_Global::getPartiName(int parti)
{
    const PartitionInfo *entry = initialisedEntryOf(parti);
    if (!entry || entry->mountDir[0] != '/')
        return QString();
    QString path = QString::fromLocal8Bit(entry->mountDir);
    if (path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}

QString TAMBRO_Global::getPartiShortName(int parti)
{
    const PartitionInfo *entry = initialisedEntryOf(parti);
    return entry ? QString::fromUtf8(entry->displayName) : QString();
}

QString TAMBRO_Global::getPartiLabel(int parti)
{
    initialiseIfAbsent();
    const PartitionInfo *entry = entryOf(parti);
    return entry ? QString::fromLatin1(entry->label) : QStringLiteral("");
}

QString TAMBRO_Global::getPartiDevName(int parti)
{
    const PartitionInfo *entry = entryOf(parti);
    return entry ? QString::fromLocal8Bit(entry->deviceName) : QStringLiteral("");
}

int TAMBRO_Global::getDeviceCardType(int parti)
{
    const PartitionInfo *entry = initialisedEntryOf(parti);
    return entry ? entry->deviceType : -1;
}

bool TAMBRO_Global::isPhone(int parti)
{
    return hasType(parti, Tambro::PhoneMemory);
}

bool TAMBRO_Global::isCards(int parti)
{
    return hasType(parti, Tambro::MegaSim) || hasType(parti, Tambro::MemoryCard);
}

bool TAMBRO_Global::writeProtected(int parti)
{
    const PartitionInfo *entry = parti >= 1 ? entryOf(parti) : nullptr;
    return entry && entry->writeProtected;
}

bool TAMBRO_Global::isCardLocked(int parti)
{
    initialiseIfAbsent();
    return hasStatus(parti, Tambro::Locked);
}

bool TAMBRO_Global::isUnformattedParti(int parti)
{
    return hasStatus(parti, Tambro::Unformatted);
}

bool TAMBRO_Global::isInvalidParti(int parti)
{
    return hasStatus(parti, Tambro::Invalid);
}

int TAMBRO_Global::getPhoneNoi()
{
    return partitionTable() ? partitionTable()->numberOfType(Tambro::PhoneMemory) : -1;
}

bool TAMBRO_Global::isDeviceMounted(int deviceType)
{
    initMem(0);
    return entryOfType(deviceType) != nullptr;
}

bool TAMBRO_Global::isDeviceMounted(const char *deviceName)
{
    initMem(0);
    return deviceName && partitionTable() && partitionTable()->findByDeviceName(deviceName);
}

bool TAMBRO_Global::hasMMCSDCard(bool)
{
    initMem(0);
    const PartitionInfo *card = entryOfType(Tambro::MemoryCard);
    return card && card->number > 0;
}

QString TAMBRO_Global::getMountedPath(int deviceType)
{
    if (unsigned(deviceType) > unsigned(Tambro::MemoryCard))
        return QString();
    // Looked up before initialising: without a table there is no path yet.
    const PartitionInfo *entry = entryOfType(deviceType);
    if (!entry)
        return QString();
    // Kept by value: instance() may rescan, which replaces the table's entries.
    const int number = entry->number;
    if (number > instance()->getPartiActNumber())
        return QString();
    return getPartiName(number);
}

QString TAMBRO_Global::getDefaultMMCSDPartition()
{
    return instance()->getMountedPath(Tambro::MemoryCard);
}

int TAMBRO_IsDeviceMountedbyNum(int deviceType)
{
    return TAMBRO_Global::isDeviceMounted(deviceType) ? 1 : 0;
}

int TAMBRO_IsDeviceMountedbyName(const char *deviceName)
{
    return TAMBRO_Global::isDeviceMounted(deviceName) ? 1 : 0;
}

QString TAMBRO_GetDefaultMMCSDPartition()
{
    return TAMBRO_Global::getDefaultMMCSDPartition();
}
