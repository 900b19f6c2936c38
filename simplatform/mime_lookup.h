// The simulated MIME registry's look-ups, shared by AM_MimeRegistry and
// UTIL_MimeType. Nothing here is journaled.
#pragma once

#include "device.h"

#include <QString>
#include <QStringList>

namespace KivSim {

// The device's [mime] entry for the extension (exact key, then ignoring case);
// else, with [registry] system = 1, the system's MIME database; else empty.
QString mimeTypeOf(const DeviceState &device, const QString &extension);
// The [mime] keys mapped to the type, in file order.
QStringList extensionsOf(const DeviceState &device, const QString &mimeType);

// The [handlers] entry for the type, else for its family ("audio/*"); else null.
QString handlerForMimeType(const DeviceState &device, const QString &mimeType);
// The [handlers] entry for the extension, else the handler of its MIME type; else null.
QString handlerForExtension(const DeviceState &device, const QString &extension);

} // namespace KivSim
