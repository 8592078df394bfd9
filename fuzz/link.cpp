// A link as a launch or the widget hands it over: a link that is not refused
// keeps both bounds, whatever its encoding.
#include "FuzzCheck.h"
#include "WidgetLink.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QUrl &url : { QUrl::fromEncoded(bytes), QUrl::fromUserInput(QString::fromUtf8(bytes)) }) {
        if (!WidgetLink::refusal(url).isEmpty())
            continue;
        FUZZ_CHECK(url.toEncoded().size() <= WidgetLink::maxLinkLength);
        FUZZ_CHECK(WidgetLink::queryValue(url, QStringLiteral("number")).size() <= WidgetLink::maxNumberLength);
        WidgetLink::isTrue(WidgetLink::queryValue(url, QStringLiteral("hidden")));
    }
    return 0;
}
