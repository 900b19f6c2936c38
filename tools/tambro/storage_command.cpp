#include "storage_command.h"

#include "disk_space.h"
#include "text_table.h"

#include <TAMBRO_Global.h>
#include <TAMBRO_ListView.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString kindName(int deviceType)
{
    switch (deviceType) {
    case 0:
        return QStringLiteral("phone");
    case 1:
        return QStringLiteral("megasim");
    case 2:
        return QStringLiteral("card");
    }
    return QStringLiteral("unknown");
}

// In the list view's order of the states; a write-protected storage is
// ready for reading, and says so in a column of its own.
QString statusName(int parti)
{
    switch (TAMBRO_ListView::storageState(parti)) {
    case TAMBRO_ListView::Locked:
        return QStringLiteral("locked");
    case TAMBRO_ListView::Unformatted:
        return QStringLiteral("unformatted");
    case TAMBRO_ListView::Invalid:
        return QStringLiteral("invalid");
    case TAMBRO_ListView::WriteProtected:
    case TAMBRO_ListView::Usable:
        break;
    }
    return QStringLiteral("ready");
}

QJsonObject partitionObject(int parti)
{
    QJsonObject partition = diskSpace(TAMBRO_Global::getPartiName(parti));
    const QJsonObject facts{
        {QStringLiteral("number"), parti},
        {QStringLiteral("kind"), kindName(TAMBRO_Global::getDeviceCardType(parti))},
        {QStringLiteral("name"), TAMBRO_Global::getPartiShortName(parti)},
        {QStringLiteral("label"), TAMBRO_Global::getPartiLabel(parti)},
        {QStringLiteral("device"), TAMBRO_Global::getPartiDevName(parti)},
        {QStringLiteral("path"), TAMBRO_Global::getPartiName(parti)},
        {QStringLiteral("status"), statusName(parti)},
        {QStringLiteral("writeProtected"), TAMBRO_Global::writeProtected(parti)},
        {QStringLiteral("locked"), TAMBRO_Global::isCardLocked(parti)},
    };
    for (auto it = facts.begin(); it != facts.end(); ++it)
        partition.insert(it.key(), it.value());
    return partition;
}

QString yesNo(bool value)
{
    return value ? QStringLiteral("yes") : QStringLiteral("no");
}

QString textTable(const QJsonArray &partitions)
{
    TextTable table({QStringLiteral("#"), QStringLiteral("KIND"), QStringLiteral("NAME"),
                     QStringLiteral("LABEL"), QStringLiteral("DEVICE"), QStringLiteral("PATH"),
                     QStringLiteral("STATUS"), QStringLiteral("WP"), QStringLiteral("LOCKED"),
                     QStringLiteral("FREE"), QStringLiteral("TOTAL")});
    for (const QJsonValue &value : partitions) {
        const QJsonObject p = value.toObject();
        const QString path = p[QStringLiteral("path")].toString();
        table.addRow({QString::number(p[QStringLiteral("number")].toInt()),
                      p[QStringLiteral("kind")].toString(), p[QStringLiteral("name")].toString(),
                      p[QStringLiteral("label")].toString(), p[QStringLiteral("device")].toString(),
                      path.isEmpty() ? QStringLiteral("-") : path,
                      p[QStringLiteral("status")].toString(),
                      yesNo(p[QStringLiteral("writeProtected")].toBool()),
                      yesNo(p[QStringLiteral("locked")].toBool()),
                      p[QStringLiteral("availableText")].toString(),
                      p[QStringLiteral("totalText")].toString()});
    }
    return table.toString();
}

} // namespace

int runStorageCommand(QTextStream &out, const Request &request)
{
    TAMBRO_Global::instance();
    QJsonArray partitions;
    for (int parti = 1; parti <= TAMBRO_Global::getPartiActNumber(); ++parti)
        partitions.append(partitionObject(parti));

    return printReport(out, request, partitions, textTable);
}
