#include "WidgetLink.h"

#include <QUrlQuery>

QString WidgetLink::queryValue(const QUrl &url, const QString &key)
{
    if (!url.isValid())
        return QString();
    for (const auto &item : QUrlQuery(url.query(QUrl::FullyEncoded)).queryItems(QUrl::FullyDecoded)) {
        if (item.first == key)
            return item.second;
    }
    return QString();
}

bool WidgetLink::isTrue(const QString &value)
{
    return value.toLower() == QLatin1StringView("true");
}

QString WidgetLink::refusal(const QUrl &url)
{
    if (const qsizetype length = url.toEncoded().size(); length > maxLinkLength)
        return QStringLiteral("link of %1 characters, more than %2").arg(length).arg(maxLinkLength);
    if (const qsizetype length = queryValue(url, QStringLiteral("number")).size(); length > maxNumberLength)
        return QStringLiteral("number of %1 characters, more than %2").arg(length).arg(maxNumberLength);
    return QString();
}
