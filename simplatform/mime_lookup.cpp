#include "mime_lookup.h"

#include <QMimeDatabase>

namespace KivSim {

namespace {

QString valueOf(const KeyFile::Section &section, const QString &key)
{
    const KeyFile::Entry *entry = section.findIgnoringCase(key);
    return entry ? entry->value : QString();
}

QString systemMimeTypeOf(const QString &extension)
{
    if (extension.isEmpty() || extension.contains(u'/'))
        return QString();
    const QMimeType type = QMimeDatabase().mimeTypeForFile(QStringLiteral("file.") + extension,
                                                           QMimeDatabase::MatchExtension);
    // The database's fallback, application/octet-stream, means it does not know.
    return type.isValid() && !type.isDefault() ? type.name() : QString();
}

QString familyOf(const QString &mimeType)
{
    const qsizetype slash = mimeType.indexOf(u'/');
    return slash > 0 ? mimeType.left(slash) + QStringLiteral("/*") : QString();
}

} // namespace

QString mimeTypeOf(const DeviceState &device, const QString &extension)
{
    const QString listed = valueOf(device.mimeTypes, extension);
    if (!listed.isNull() || !device.systemMimeDatabase)
        return listed;
    return systemMimeTypeOf(extension);
}

QStringList extensionsOf(const DeviceState &device, const QString &mimeType)
{
    QStringList extensions;
    for (const KeyFile::Entry &entry : device.mimeTypes.entries) {
        if (entry.value.compare(mimeType, Qt::CaseInsensitive) == 0)
            extensions.append(entry.key);
    }
    return extensions;
}

QString handlerForMimeType(const DeviceState &device, const QString &mimeType)
{
    // Extensions and types share [handlers]; only a key with a slash is a type.
    if (!mimeType.contains(u'/'))
        return QString();
    const QString handler = valueOf(device.handlers, mimeType);
    if (!handler.isNull())
        return handler;
    const QString family = familyOf(mimeType);
    return family.isEmpty() ? QString() : valueOf(device.handlers, family);
}

QString handlerForExtension(const DeviceState &device, const QString &extension)
{
    const QString handler =
        extension.contains(u'/') ? QString() : valueOf(device.handlers, extension);
    if (!handler.isNull())
        return handler;
    return handlerForMimeType(device, mimeTypeOf(device, extension));
}

} // namespace KivSim
