#include "mount_scan.h"

#include "megasim_name.h"
#include "partition_builder.h"
#include "regularfile/regular_file.h"

#include <KIV_Paths.h>
#include <UTIL_MMCSD.h>

#include <QLoggingCategory>

Q_LOGGING_CATEGORY(lcMounts, "kivtambro.partitions", QtWarningMsg)

namespace Tambro {

namespace {

QByteArray readMountTable()
{
    const FileContent mountTable =
        readRegularFile(QString::fromLatin1(KivPaths::MountTable), MaxMountTableBytes);
    if (!mountTable.problem.isEmpty())
        qCWarning(lcMounts).noquote() << "the mount table" << KivPaths::MountTable
                                      << mountTable.problem
                                      << "and is not read: no storage is listed from it";
    return mountTable.data;
}

class PlatformAnswers : public CardAndSimAnswers
{
public:
    bool cardInfo(unsigned char *info) const override
    {
        return UTIL_GetMMCSDInfo(info, KivPaths::MemoryCardDevice) != 0;
    }
    QString megaSimName() const override { return readMegaSimName(); }
    int cardStatus() const override { return UTIL_GetMMCSDStatus(); }
};

} // namespace

void scanMounts(PartitionTable &table)
{
    table = buildPartitionTable(readMountTable(), PlatformAnswers());
}

} // namespace Tambro
