#include "ZConfig.h"

#include "keyfile.h"
#include "warning.h"

#include <QDebug>
#include <QFile>

#include <climits>

struct ZConfig::Data
{
    KeyFile file;
};

ZConfig::ZConfig(const QString &path, bool create) : d(std::make_unique<Data>())
{
    if (create && !QFile::exists(path)) {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly))
            platformWarning(QStringLiteral("cannot create %1: %2").arg(path, file.errorString()));
    }
    d->file = KeyFile::load(path);
    for (const QString &warning : d->file.warnings())
        platformWarning(warning);
}

ZConfig::~ZConfig() = default;

bool ZConfig::getGroupEntriesKeyList(const QString &group, QMap<QString, QString> &entries) const
{
    entries.clear();
    const KeyFile::Section *section = d->file.section(group);
    if (!section)
        return false;
    for (const KeyFile::Entry &entry : section->entries)
        entries.insert(entry.key, entry.value);
    return true;
}

QString ZConfig::readEntry(const QString &group, const QString &key,
                           const QString &defaultValue) const
{
    return d->file.value(group, key, defaultValue);
}

int ZConfig::readNumEntry(const QString &group, const QString &key, int defaultValue) const
{
    const QString text = d->file.value(group, key);
    const std::optional<qint64> number = KeyFile::toNumber(text);
    if (!number || *number < INT_MIN || *number > INT_MAX)
        return defaultValue;
    return int(*number);
}
