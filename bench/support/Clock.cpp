#include "Clock.h"

#include <QElapsedTimer>

#include <ctime>

namespace bench {

namespace {
double cpuMs(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}
} // namespace

double processCpuMs()
{
    return cpuMs(CLOCK_PROCESS_CPUTIME_ID);
}

double threadCpuMs()
{
    return cpuMs(CLOCK_THREAD_CPUTIME_ID);
}

double msSince(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace bench
