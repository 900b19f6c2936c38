#include "open_command.h"

#include "journal_reader.h"
#include "output.h"
#include "text_table.h"

#include <TAMBRO_FileHandle.h>

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>

namespace {

// As the file manager opens a file it lists: by its absolute path.
QJsonObject open(const QString &file, const Request &request, JournalReader &journal)
{
    const QFileInfo info(file);
    const QString type = request.type.isNull() ? info.suffix().toLower() : request.type;
    journal.mark();
    const int result = TAMBRO_FileHandle(info.absoluteFilePath(), type, info.absolutePath(), nullptr,
                                         request.installArgument, !request.normal)
                           .Handle();
    return QJsonObject{{QStringLiteral("file"), info.absoluteFilePath()},
                       {QStringLiteral("type"), type},
                       {QStringLiteral("result"), result},
                       {QStringLiteral("requests"), journal.requestsSinceMark()}};
}

QString textTable(const QJsonArray &opened)
{
    TextTable table({QStringLiteral("FILE"), QStringLiteral("RESULT"), QStringLiteral("REQUESTS")});
    for (const QJsonValue &value : opened) {
        const QJsonObject file = value.toObject();
        QStringList requests;
        for (const QJsonValue &request : file[QStringLiteral("requests")].toArray())
            requests << describeRequest(request.toObject());
        table.addRow({file[QStringLiteral("file")].toString(), QString::number(file[QStringLiteral("result")].toInt()),
                      requests.isEmpty() ? QStringLiteral("-") : requests.takeFirst()});
        for (const QString &more : requests) // one request a line
            table.addRow({QString(), QString(), more});
    }
    return table.toString();
}

} // namespace

int runOpenCommand(QTextStream &out, const Request &request)
{
    JournalReader journal;
    QJsonArray opened;
    int status = 0;
    for (const QString &file : request.arguments) {
        // The phone's applications would be asked to open it all the same.
        if (!QFileInfo::exists(file)) {
            status = reportFailure(QStringLiteral("no file '%1'").arg(file));
            continue;
        }
        opened.append(open(file, request, journal));
    }
    printReport(out, request, opened, textTable);
    return status;
}
