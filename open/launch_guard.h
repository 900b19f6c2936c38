// The launch guard: media and documents are not sent more often than once
// in two seconds, as a double press would; shared by every handler.
#pragma once

namespace Tambro {

// Whether a launch may go now; an accepted launch starts a new period, a
// refused one leaves the old one. The first launch always goes.
bool launchGuardAccepts();

} // namespace Tambro
