// The two notices of opening files, modal and without a parent.
#pragma once

#include <QString>

namespace Tambro {

// Contact and calendar files are opened by their own applications.
void showCannotAccess(const QString &filePath);
// A Java descriptor whose archive is not beside it.
void showInstallationFailed();

} // namespace Tambro
