// The phone's feature bits on this machine. Each config folder (the user's
// first, as XDG orders them) may hold "kivtambro/features.ini" with a [flex]
// section of "bit = 1" or "bit = 0" entries; the first folder that sets a bit
// decides it. A bit no file sets has its default below, chosen for a desktop:
//   149 posting to a blog by multimedia message   0
//   162 installing native packages (.mpkg)        0
//   205 e-mail (the machine has no e-mail service) 0
//   212 postcards                                 0
//   514 the blog centre                           0
// Any other bit is unknown.
#pragma once

#include <QStringList>

#include <optional>

namespace KivHost {

inline constexpr char FeatureFileName[] = "kivtambro/features.ini";

// The bit's value, nothing when it is unknown. A value other than 0 or 1 is
// not a setting: the next folder, or the default, decides.
std::optional<bool> featureBit(unsigned short bit, const QStringList &configFolders);

} // namespace KivHost
