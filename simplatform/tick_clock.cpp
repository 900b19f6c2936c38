#include "tick_clock.h"

#include <chrono>
#include <fstream>
#include <string>

#if defined(__x86_64__)
#include <x86intrin.h>
#endif

namespace KivSim::TickClock {

namespace {

// The kernel uses the counter as its clock only after checking that it runs
// at a constant rate and in step on every processor, which is what a thread
// moved between processors needs.
[[maybe_unused]] bool kernelKeepsTimeByCounter()
{
    std::ifstream source("/sys/devices/system/clocksource/clocksource0/current_clocksource");
    std::string name;
    return std::getline(source, name) && name == "tsc";
}

} // namespace

Ticks now()
{
#if defined(__x86_64__)
    static const bool counter = kernelKeepsTimeByCounter();
    if (counter)
        return __rdtsc();
#endif
    return std::chrono::duration_cast<std::chrono::nanoseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

} // namespace KivSim::TickClock
