// The process-wide icon cache: pictures by icon file name, loaded from the
// platform's icon store once each.
#pragma once

namespace Tambro {

// Loads the standard icons that every listing draws, replacing any cached
// picture of the same name. Run by the context's initialisation.
void preloadIcons();

} // namespace Tambro
