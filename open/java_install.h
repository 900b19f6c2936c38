// Installing Java applications through the services library.
#pragma once

#include <QString>

namespace Tambro {

// Installs a Java archive: true when the services library did.
bool installJavaArchive(const QString &archivePath, int installArgument);
// Installs the application that a Java descriptor describes, with its
// archive from the folder when the descriptor needs one; a missing archive
// is told in a notice. True when the services library installed it.
bool installJavaDescriptor(const QString &descriptorPath, const QString &folder, int installArgument);

} // namespace Tambro
