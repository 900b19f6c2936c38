// Showing the host inside the sandbox, one folder entry at a time.
#pragma once

#include <QString>
#include <QStringList>

// bwrap arguments that show every entry of a host folder read-only at the
// same place (symbolic links re-created as links), except the skipped names.
// Binding entry by entry rather than the folder itself leaves room for the
// sandbox's own entries beside them.
QStringList mirrorHostFolder(const QString &folder, const QStringList &skippedNames);
