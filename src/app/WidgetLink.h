#pragma once

#include <QString>
#include <QUrl>

// The values a home-screen widget passes in a quieton: link.
class WidgetLink
{
public:
    // The value of the first query item named exactly `key` (case-sensitive);
    // empty when the item, its value or a usable URL is missing.
    static QString queryValue(const QUrl &url, const QString &key);
    // A link value meaning "on": "true" in any letter case.
    static bool isTrue(const QString &value);
};
