#pragma once

#include <QString>
#include <QUrl>

// The values a home-screen widget passes in a quieton: link.
class WidgetLink
{
public:
    // Bounds on a link from outside, checked before anything lays it out:
    // the link as sent (percent-encoded) and the number it carries.
    static constexpr qsizetype maxLinkLength = 4096;
    static constexpr qsizetype maxNumberLength = 64;
    // Why `url` is refused (past a bound), or an empty string when it is not.
    static QString refusal(const QUrl &url);

    // The value of the first query item named exactly `key` (case-sensitive);
    // empty when the item, its value or a usable URL is missing.
    static QString queryValue(const QUrl &url, const QString &key);
    // A link value meaning "on": "true" in any letter case.
    static bool isTrue(const QString &value);
};
