// A desktop entry's Exec line: its arguments and the command that opens
// files or URLs with the application.
#pragma once

#include "desktop_entry.h"

#include <QString>
#include <QStringList>

namespace KivHost {

// The arguments of an Exec value (already unescaped as a desktop entry
// string). Arguments are separated by blanks; double quotes group one, and
// within them a backslash escapes '"', '`', '$' and '\'. Nothing when the
// quoting is invalid: a quote left open, or any other backslash in quotes.
QStringList execArguments(const QString &exec);

// The command that opens the items (local paths or URLs) with the entry: its
// Exec arguments with the field codes expanded.
//   %f %u  the first item only (an application that takes one item at a time
//          is started once for each by the caller);
//   %F %U  every item, one argument each; only as an argument of their own;
//   an item is passed as given, a "file:" URL as its local path;
//   %i     "--icon" and the Icon, as two arguments, when the entry has an Icon;
//   %c     the Name;  %k  the entry's path;  %%  a '%';
//   any other field code (such as the deprecated %d %D %n %N %v %m) is left
//   out. An argument that was only field codes that gave nothing is left out.
// Nothing when the Exec line's quoting is invalid.
QStringList commandLine(const DesktopEntry &entry, const QStringList &items);

} // namespace KivHost
