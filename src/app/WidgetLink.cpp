#include "WidgetLink.h"

#include <QUrlQuery>

QString WidgetLink::queryValue(const QUrl &url, const QString &key)
{
    if (!url.isValid())
        return QString();
    const QUrlQuery query(url.query(QUrl::FullyEncoded));
    const auto items = query.queryItems(QUrl::FullyDecoded);
    for (const auto &item : items) {
        if (item.first == key)
            return item.second;
    }
    return QString();
}

bool WidgetLink::isTrue(const QString &value)
{
    return value.toLower() == QLatin1StringView("true");
}
