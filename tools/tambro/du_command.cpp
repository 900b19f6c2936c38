#include "du_command.h"

#include "disk_space.h"
#include "folder_reader.h"
#include "output.h"
#include "printable/printable_text.h"
#include "text_table.h"

#include <TAMBRO_Global.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {

QJsonObject describeUsage(const QString &path)
{
    const quint64 size = TAMBRO_Global::getSize(path);
    const TAMBRO_ITEM_COUNT all = TAMBRO_Global::getNum(path, true);
    const TAMBRO_ITEM_COUNT own = TAMBRO_Global::getNum(path, false);
    QJsonObject usage = diskSpace(path);
    usage.insert(QStringLiteral("path"), path);
    usage.insert(QStringLiteral("size"), double(size));
    usage.insert(QStringLiteral("sizeText"), TAMBRO_Global::getDetailViewSizeStr(double(size)));
    usage.insert(QStringLiteral("files"), qint64(all.files));
    usage.insert(QStringLiteral("folders"), qint64(all.folders));
    usage.insert(QStringLiteral("ownFiles"), qint64(own.files));
    usage.insert(QStringLiteral("ownFolders"), qint64(own.folders));
    usage.insert(QStringLiteral("readOnly"), TAMBRO_Global::isReadOnly(path));
    return usage;
}

QString count(const QJsonObject &usage, const char *all, const char *own)
{
    return QStringLiteral("%1 (%2 directly)")
        .arg(qint64(usage[QLatin1String(all)].toDouble()))
        .arg(qint64(usage[QLatin1String(own)].toDouble()));
}

QString usageTable(const QJsonObject &u)
{
    TextTable table({QStringLiteral("Path"), u[QStringLiteral("path")].toString()});
    table.addRow({QStringLiteral("Size"), QStringLiteral("%1 bytes (%2)")
                                              .arg(quint64(u[QStringLiteral("size")].toDouble()))
                                              .arg(u[QStringLiteral("sizeText")].toString())});
    table.addRow({QStringLiteral("Files"), count(u, "files", "ownFiles")});
    table.addRow({QStringLiteral("Folders"), count(u, "folders", "ownFolders")});
    table.addRow({QStringLiteral("Free"), QStringLiteral("%1 of %2").arg(u[QStringLiteral("availableText")].toString(),
                                                                       u[QStringLiteral("totalText")].toString())});
    table.addRow({QStringLiteral("Read-only"),
                  u[QStringLiteral("readOnly")].toBool() ? QStringLiteral("yes") : QStringLiteral("no")});
    return table.toString();
}

QString textReport(const QJsonObject &report)
{
    QString text;
    for (const QJsonValue &usage : report[QStringLiteral("paths")].toArray())
        text += usageTable(usage.toObject()) + u'\n';
    return text + printableText(report[QStringLiteral("selectionTitle")].toString()) + u'\n';
}

} // namespace

int runDuCommand(QTextStream &out, const Request &request)
{
    QJsonArray paths;
    double total = 0;
    int status = 0;
    for (const QString &path : request.arguments) {
        // As du does: a missing path is said and left out, the others shown.
        if (!QFileInfo::exists(path)) {
            status = reportFailure(QStringLiteral("no file or folder '%1'").arg(path));
            continue;
        }
        // The library counts what it can read; what it could not is said.
        for (const QByteArray &folder : unreadableFolders(path))
            status = reportFailure(QStringLiteral("cannot read the folder '%1': its content is not counted"), folder);
        const QJsonObject usage = describeUsage(path);
        total += usage[QStringLiteral("size")].toDouble();
        paths.append(usage);
    }
    const QJsonObject report{{QStringLiteral("paths"), paths},
                             {QStringLiteral("selectionTitle"),
                              TAMBRO_Global::getMultiSelectTitle(total, unsigned(paths.size()))}};
    printReport(out, request, report, textReport);
    return status;
}
