#pragma once

#include <QStringList>

namespace bench {

// A size field of /proc/self/status in kB, e.g. "VmHWM:" (peak resident
// memory) or "VmRSS:"; -1 when it cannot be read.
qint64 statusKb(const char *field);
inline qint64 peakMemoryKb() { return statusKb("VmHWM:"); }

// Runs this benchmark again with `arguments` in a process of its own (for a
// peak memory that starts afresh), its output going to ours; returns its
// exit code.
int runSelf(const QStringList &arguments);

} // namespace bench
