#include "launch_guard.h"

#include <sys/time.h>

namespace Tambro {

namespace {

constexpr long long GuardMilliseconds = 2000;

bool firstLaunch = true;
timeval lastLaunch = {0, 0};

long long millisecondsSince(const timeval &then, const timeval &now)
{
    // The microseconds' difference is truncated toward zero, as the phone does.
    return (now.tv_sec - then.tv_sec) * 1000LL + (now.tv_usec - then.tv_usec) / 1000;
}

} // namespace

bool launchGuardAccepts()
{
    timeval now;
    gettimeofday(&now, nullptr);
    if (!firstLaunch && millisecondsSince(lastLaunch, now) <= GuardMilliseconds)
        return false;
    firstLaunch = false;
    lastLaunch = now;
    return true;
}

} // namespace Tambro
