#include "open_command.h"

#include "text_table.h"

#include <TAMBRO_FileHandle.h>

#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonObject>
#include <QTemporaryDir>

namespace {

// The simulated phone journals each platform request; what a call added to
// the journal is what it asked of the phone.
class JournalReader
{
public:
    // Before the first platform call: a journal of the tool's own when none is named.
    JournalReader()
    {
        if (qEnvironmentVariableIsEmpty("KIVSIM_JOURNAL"))
            qputenv("KIVSIM_JOURNAL", QFile::encodeName(m_folder.filePath(QStringLiteral("journal.jsonl"))));
        m_file.setFileName(qEnvironmentVariable("KIVSIM_JOURNAL"));
    }
    void mark() { m_start = QFileInfo(m_file.fileName()).size(); }
    QJsonArray requestsSinceMark()
    {
        QJsonArray requests;
        if (!m_file.open(QIODevice::ReadOnly))
            return requests;
        m_file.seek(m_start);
        for (const QByteArray &line : m_file.readAll().split('\n')) {
            if (!line.isEmpty())
                requests.append(QJsonDocument::fromJson(line).object());
        }
        m_file.close();
        return requests;
    }

private:
    QTemporaryDir m_folder;
    QFile m_file;
    qint64 m_start = 0;
};

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

// "call key=value ...", the values as JSON.
QString describe(const QJsonObject &request)
{
    QStringList parts{request[QStringLiteral("call")].toString()};
    for (auto it = request.begin(); it != request.end(); ++it) {
        if (it.key() == QLatin1String("call"))
            continue;
        const QByteArray value = QJsonDocument(QJsonArray{it.value()}).toJson(QJsonDocument::Compact);
        parts << it.key() + u'=' + QString::fromUtf8(value.mid(1, value.size() - 2));
    }
    return parts.join(u' ');
}

QString textTable(const QJsonArray &opened)
{
    TextTable table({QStringLiteral("FILE"), QStringLiteral("RESULT"), QStringLiteral("REQUESTS")});
    for (const QJsonValue &value : opened) {
        const QJsonObject file = value.toObject();
        QStringList requests;
        for (const QJsonValue &request : file[QStringLiteral("requests")].toArray())
            requests << describe(request.toObject());
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
