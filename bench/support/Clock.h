#pragma once

class QElapsedTimer;

namespace bench {

// Processor time used so far, in ms: by the whole process, or by the
// calling thread alone. Neither counts time spent waiting for a processor
// on a busy machine.
double processCpuMs();
double threadCpuMs();
// Wall-clock ms since `timer` was started.
double msSince(const QElapsedTimer &timer);

} // namespace bench
