// This machine's applications, as the XDG default applications name them,
// and how one is started on files or URLs.
#pragma once

#include "mime_apps.h"

namespace KivHost {

// Read at the first question, once per process: an application installed
// later is seen by the next process.
const MimeApps &applications();

// Starts the application of the desktop file id on the items (paths or
// URLs): a D-Bus activatable one through org.freedesktop.Application.Open,
// else its Exec line, detached. Inside a Flatpak sandbox the desktop portal
// opens each item instead, whatever the id. False, with a warning, when it
// cannot be.
bool startApplication(const QString &desktopId, const QStringList &items);

// The default application of the path's type, started on it.
bool openWithDefault(const QString &path);

} // namespace KivHost
