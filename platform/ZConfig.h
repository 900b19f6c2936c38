// Reader of ini-style configuration files: [group] headers and key = value lines.
#pragma once

#include "platform_export.h"

#include <QMap>
#include <QString>
#include <memory>

class KIVPLATFORM_EXPORT ZConfig
{
public:
    ZConfig(const QString &path, bool create);
    ~ZConfig();

    // All entries of one group, ordered by key.
    QMap<QString, QString> getGroupEntriesKeyList(const QString &group) const;
    QString readEntry(const QString &group, const QString &key, const QString &defaultValue) const;
    int readNumEntry(const QString &group, const QString &key, int defaultValue) const;

private:
    struct Data;
    std::unique_ptr<Data> d;
};
