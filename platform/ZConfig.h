// Reader of ini-style configuration files: [group] headers and key = value lines.
//
// The file is read once, when the object is made; a missing or unreadable file
// is an empty configuration. A group's name is the text between '[' and the
// first ']', exactly as written ("[/voice records]", "[//ZELK_PRELOAD:/pic]",
// "[/music ]" with its blank); values keep trailing blanks; a repeated key
// keeps the last value; lines whose first non-blank character is '#' or ';'
// are comments.
#pragma once

#include "platform_export.h"

#include <QMap>
#include <QString>
#include <memory>

class KIVPLATFORM_EXPORT ZConfig
{
public:
    // create: make an empty file when none exists.
    ZConfig(const QString &path, bool create);
    ~ZConfig();

    // Fills entries with all entries of the group, ordered by key, and tells
    // whether the group exists; entries is cleared either way. A group without
    // entries exists when its header is in the file.
    bool getGroupEntriesKeyList(const QString &group, QMap<QString, QString> &entries) const;
    // The value of the key, or defaultValue when the group or key is missing.
    QString readEntry(const QString &group, const QString &key, const QString &defaultValue) const;
    // The value as an integer, or defaultValue when the group or key is missing
    // or the value is no number that fits an int.
    int readNumEntry(const QString &group, const QString &key, int defaultValue) const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};
