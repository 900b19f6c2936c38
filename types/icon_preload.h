#pragma once

namespace Tambro {

// Loads the standard icons into the icon cache.
void preloadIcons();

} // namespace Tambro
