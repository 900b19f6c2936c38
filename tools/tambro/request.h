// What the user asked of tambro, once the command line has been checked.
#pragma once

#include <QJsonArray>
#include <QJsonDocument>
#include <QString>
#include <QStringList>
#include <QTextStream>

// The values tambro format writes, as given.
struct FormatValues
{
    QStringList sizes;
    QString decimals; // null when not given
    QStringList dates;
    QStringList durations;
};

struct Request
{
    QStringList arguments; // after the command word
    bool json = false;
    QString png; // --png FILE, where the command draws
    QString type; // --type TYPE of open: the caller's type string; null for the extension
    bool normal = false; // --normal of open: the image viewer's normal view
    int installArgument = 0; // --install-arg N of open
    FormatValues format;
    // ls: the files listed; null or false when not given
    QString filter; // --filter PATTERN
    QString filterList; // --filter-list P1,P2,...
    bool ringTones = false; // --ringtones
};

// A name's bytes, for names that are not UTF-8 and so cannot be given whole
// as JSON text.
inline QJsonArray jsonBytes(const QByteArray &bytes)
{
    QJsonArray array;
    for (const char byte : bytes)
        array.append(int(quint8(byte)));
    return array;
}

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
