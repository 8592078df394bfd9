#include "Statistics.h"

#include <algorithm>

namespace bench {

double median(QList<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

double percentile(QList<double> values, int percent)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    return values[std::min(values.size() - 1, values.size() * percent / 100)];
}

double maximum(const QList<double> &values)
{
    return values.isEmpty() ? 0 : *std::max_element(values.cbegin(), values.cend());
}

} // namespace bench
