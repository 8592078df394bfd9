#pragma once

#include <QList>

namespace bench {

// The middle value (the mean of the two middle ones for an even count);
// 0 for no values.
double median(QList<double> values);
// The value below which `percent` per cent of the values lie; 0 for none.
double percentile(QList<double> values, int percent);
// The largest value; 0 for none.
double maximum(const QList<double> &values);

} // namespace bench
