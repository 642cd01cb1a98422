#pragma once

#include <ctime>

/// The processor time that the program has used, in seconds. Unlike a clock it does not mind what else the machine does.
inline double cpuTime()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}

/// As long as may pass before something is refused, in seconds of cpuTime().
#ifdef __SANITIZE_ADDRESS__
constexpr double AtOnce = 8;
#else
constexpr double AtOnce = 1;
#endif
