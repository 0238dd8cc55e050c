#include "flood/still_clock.h"

#include <ctime>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr std::int64_t nanosecondsPerMillisecond = 1'000'000;
constexpr std::int64_t nanosecondsPerSecond = 1'000'000'000;

bool stopped = false;
std::int64_t stoppedAt = 0; // nanoseconds
std::int64_t passed = 0;    // nanoseconds

} // namespace

// Stands before the C library's in every library of the process.
extern "C" int clock_gettime(clockid_t clock, timespec* time)
{
    if (!stopped || clock != CLOCK_MONOTONIC) {
        return static_cast<int>(::syscall(SYS_clock_gettime, clock, time));
    }
    const std::int64_t now = stoppedAt + passed;
    time->tv_sec = now / nanosecondsPerSecond;
    time->tv_nsec = now % nanosecondsPerSecond;
    return 0;
}

namespace torvane::testing {

void stopClock()
{
    timespec now{};
    ::syscall(SYS_clock_gettime, CLOCK_MONOTONIC, &now);
    stoppedAt = now.tv_sec * nanosecondsPerSecond;
    passed = 0;
    stopped = true;
}

void passTime(int milliseconds)
{
    passed += milliseconds * nanosecondsPerMillisecond;
}

std::int64_t passedTime()
{
    return passed / nanosecondsPerMillisecond;
}

} // namespace torvane::testing
