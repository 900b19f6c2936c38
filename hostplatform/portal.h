// Inside a Flatpak sandbox this machine's applications cannot be started:
// files and URLs are handed to the XDG desktop portal, which opens them with
// the application the user chooses outside.
#pragma once

#include <QString>

namespace KivHost {

// Whether this process runs in a Flatpak sandbox: its /.flatpak-info is there.
bool inSandbox();

// Asks the portal's OpenURI to open the item: a local file (a path or a
// file: URL) by a descriptor through OpenFile, anything else through OpenURI.
// False, with a warning, when the portal does not take the request.
bool openThroughPortal(const QString &item);

} // namespace KivHost
