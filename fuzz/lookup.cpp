// The store's answer (bounded in size before it gets here): decoded, or
// refused with a reason.
#include "FuzzCheck.h"
#include "LookupResult.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    QString error;
    const std::optional<LookupResult> result =
            LookupResult::decode(QByteArray(reinterpret_cast<const char *>(data), qsizetype(size)), &error);
    FUZZ_CHECK(result.has_value() == error.isEmpty());
    return 0;
}
