// The one place where the library moves a user's folder: out of the way of a
// fixed folder's display name, so that the names a listing shows stay unique.
#pragma once

#include <QString>

namespace Tambro {

// When a folder other than the fixed folder at fixedFolderPath bears its
// display name among its siblings, renames that folder to the name followed
// by ".1" (".2", ... the first number without a folder of that name). Never
// replaces anything: a rename that cannot be done leaves all as it was.
void renameAsideFor(const QString &fixedFolderPath, const QString &displayName);

} // namespace Tambro
