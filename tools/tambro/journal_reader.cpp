#include "journal_reader.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <QStringList>

JournalReader::JournalReader()
{
    if (qEnvironmentVariableIsEmpty("KIVSIM_JOURNAL"))
        qputenv("KIVSIM_JOURNAL", QFile::encodeName(m_folder.filePath(QStringLiteral("journal.jsonl"))));
    m_file.setFileName(qEnvironmentVariable("KIVSIM_JOURNAL"));
}

void JournalReader::mark()
{
    m_start = QFileInfo(m_file.fileName()).size();
}

QJsonArray JournalReader::requestsSinceMark()
{
    if (!m_file.open(QIODevice::ReadOnly))
        return QJsonArray();
    m_file.seek(m_start);
    const QJsonArray requests = requestsIn(m_file.readAll());
    m_file.close();
    return requests;
}

QJsonArray requestsIn(const QByteArray &journal)
{
    QJsonArray requests;
    for (const QByteArray &line : journal.split('\n')) {
        if (!line.isEmpty())
            requests.append(QJsonDocument::fromJson(line).object());
    }
    return requests;
}

QString describeRequest(const QJsonObject &request)
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
