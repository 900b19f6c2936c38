// The simulated phone journals each platform request; what a call added to
// the journal is what it asked of the phone.
#pragma once

#include <QByteArray>
#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QTemporaryDir>

class JournalReader
{
public:
    // Before the first platform call: a journal of the tool's own when none is named.
    JournalReader();
    void mark();
    QJsonArray requestsSinceMark();

private:
    QTemporaryDir m_folder;
    QFile m_file;
    qint64 m_start = 0;
};

// A piece of the journal: one object a line, an empty one for a line that
// holds none (the journal may be cut short or written by anyone).
QJsonArray requestsIn(const QByteArray &journal);

// "call key=value ...", the values as JSON.
QString describeRequest(const QJsonObject &request);
