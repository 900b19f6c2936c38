#include "icon_preload.h"

namespace Tambro {

void preloadIcons()
{
    // The icon cache has no standard icons yet.
}

} // namespace Tambro
