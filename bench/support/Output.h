#pragma once

#include <QTextStream>

namespace bench {

// Standard output, where the benchmarks print their results.
QTextStream &out();

} // namespace bench
