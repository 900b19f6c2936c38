// The context frame: lazy initialisation, the registry handle, the device
// name, the collation, and the clean-up at exit.
#include "TAMBRO_Global.h"

#include "TAMBRO_FixedFolder.h"
#include "mount_scan.h"
#include "partition_table.h"
#include "types/icon_cache.h"

#include <AM_MimeRegistry.h>
#include <sortmethods.h>

#include <QVarLengthArray>

#include <cstdlib>

bool TAMBRO_Global::initMemFlag = false;
int TAMBRO_Global::phoneNoi = -1;
bool TAMBRO_Global::bSetLocaleFlag = false;
bool TAMBRO_Global::bmemberPasteCancelFlag = false;

namespace {

AM_MimeRegistry *mimeRegistry = nullptr;

void releaseAtExit()
{
    delete Tambro::partitionTable();
    Tambro::partitionTable() = nullptr;
    delete mimeRegistry;
    mimeRegistry = nullptr;
}

// The sorter takes big-endian UCS-2: each unit holds its code byte-swapped,
// which on the little-endian phone lays the code out big-endian in memory.
// Written into the caller's buffer, which a sort's n log n comparisons reuse
// (Qt's container: the standard library's would export its growth function).
using SorterBuffer = QVarLengthArray<unsigned short, 128>;
const unsigned short *sorterUnits(const QString &text, SorterBuffer &units)
{
    units.resize(text.size() + 1);
    for (qsizetype i = 0; i < text.size(); ++i) {
        const unsigned short code = text.at(i).unicode();
        units[i] = static_cast<unsigned short>(((code & 0xFF) << 8) | (code >> 8));
    }
    units.back() = 0;
    return units.data();
}

} // namespace

TAMBRO_Global *TAMBRO_Global::instance()
{
    initMem(0);
    static TAMBRO_Global *const single = [] {
        std::atexit(releaseAtExit);
        return new TAMBRO_Global;
    }();
    return single;
}

void TAMBRO_Global::initMem(int)
{
    if (initMemFlag)
        return;
    Tambro::PartitionTable *&table = Tambro::partitionTable();
    if (!table)
        table = new Tambro::PartitionTable;
    Tambro::scanMounts(*table);
    Tambro::preloadIcons();
    initMemFlag = true;
}

AM_MimeRegistry *TAMBRO_Global::getAmMimeRegInstance()
{
    if (!mimeRegistry) {
        mimeRegistry = new AM_MimeRegistry;
        mimeRegistry->init(MIME_FILE_T(0));
    }
    return mimeRegistry;
}

QString TAMBRO_Global::getDeviceName()
{
    return TAMBRO_FixedFolder::m_sFMRootPath;
}

int TAMBRO_Global::compareString(const QString &first, const QString &second)
{
    thread_local SorterBuffer firstUnits;
    thread_local SorterBuffer secondUnits;
    return sortmethods_str_cmp(sorterUnits(first, firstUnits), sorterUnits(second, secondUnits));
}
