// Paths that the device file names, resolved inside the run's copy of the
// device folder. The copy is bound into the sandbox, some of it writable, so
// a symbolic link in it must never lead the sandbox to a file of the host.
#pragma once

#include <QString>

#include <optional>

// Resolves relative (a path inside folder) to the path it names inside
// folder, with every symbolic link on the way followed by hand. A link that
// is absolute or climbs out of folder, like a ".." above it, makes the path
// unusable: nothing then, and why in error. Components that do not exist are
// kept as they are, so the result may name something still to be made.
std::optional<QString> resolveInside(const QString &folder, const QString &relative,
                                     QString &error);
