#include "open_command.h"

#include "journal_reader.h"
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
    for (const QString &file : request.arguments)
        opened.append(open(file, request, journal));
    return printReport(out, request, opened, textTable);
}
