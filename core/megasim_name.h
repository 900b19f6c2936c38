#pragma once

#include <QString>

namespace Tambro {

// The MegaSIM's display name from the device-management tree, "MegaSIM"
// when the tree has none.
QString readMegaSimName();

} // namespace Tambro
