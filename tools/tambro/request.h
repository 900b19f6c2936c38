// What the user asked of tambro, once the command line has been checked.
#pragma once

#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <QTextStream>

struct Request
{
    QStringList arguments; // after the command word
    bool json = false;
    QString png; // --png FILE, where the command draws
};

// Every command's report: the JSON document when asked for, else the text
// made from the same data. Returns the command's exit status.
template<typename Data>
int printReport(QTextStream &out, const Request &request, const Data &data,
                QString (*toText)(const Data &))
{
    if (request.json)
        out << QJsonDocument(data).toJson(QJsonDocument::Indented);
    else
        out << toText(data);
    return 0;
}
