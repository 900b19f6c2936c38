// A count that only grows, read on every platform call to tell how long ago
// the caller's previous call was: the processor's time-stamp counter where
// the kernel itself keeps time by it, which costs half of a steady_clock
// read (that converts the same counter to nanoseconds); else steady_clock's
// nanoseconds. Either way a tick is a nanosecond or less, as time-stamp
// counters run at a gigahertz or more.
#pragma once

#include <cstdint>

namespace KivSim::TickClock {

using Ticks = std::uint64_t;

inline constexpr Ticks ticksPerMillisecondAtLeast = 1'000'000;

Ticks now();

} // namespace KivSim::TickClock
