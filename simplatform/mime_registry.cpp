#include "AM_MimeRegistry.h"

#include "device.h"
#include "journal.h"

AM_MimeRegistry::AM_MimeRegistry() = default;

AM_MimeRegistry::~AM_MimeRegistry() = default;

int AM_MimeRegistry::init(MIME_FILE_T which)
{
    if (KivSim::Journal::enabled())
        KivSim::Journal::Line("AM_MimeRegistry::init").arg("type", int(which)).write();
    return 0;
}

QString AM_MimeRegistry::getAssociatedMimeType(const QString &extension)
{
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("AM_MimeRegistry::getAssociatedMimeType")
            .arg("extension", extension)
            .write();
    }
    return KivSim::device()->mime->typeOf(extension);
}

QStringList AM_MimeRegistry::getAssociatedExtensions(const QString &mimeType)
{
    return KivSim::device()->mime->extensionsOf(mimeType);
}

QString AM_MimeRegistry::getDefaultHandlerId(MIME_LOOKUP_CRITERIA criterion, const QString &key,
                                             const QString &second)
{
    Q_UNUSED(second); // the platform's refinement of the key; the simulation has none
    if (KivSim::Journal::enabled()) {
        KivSim::Journal::Line("AM_MimeRegistry::getDefaultHandlerId")
            .arg("criterion", int(criterion))
            .arg("key", key)
            .write();
    }
    const auto device = KivSim::device();
    switch (criterion) {
    case MIME_LOOKUP_BY_EXTENSION:
        return device->mime->handlerForExtension(key);
    case MIME_LOOKUP_BY_MIMETYPE:
        return device->mime->handlerForType(key);
    }
    return QString();
}
