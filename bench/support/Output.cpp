#include "Output.h"

namespace bench {

QTextStream &out()
{
    static QTextStream stream(stdout);
    return stream;
}

} // namespace bench
