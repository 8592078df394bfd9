#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <optional>

// The store's answers, decoded. The lookup service fills `results`, the
// developer API fills `data`; both come back as one LookupResult.

struct Attributes
{
    QString version;
    QString expired;
};

struct TestFlightInfo
{
    QString type;
    Attributes attributes;
};

struct AppInfo
{
    QString version;
    QString trackViewUrl;
};

struct LookupResult
{
    std::optional<QList<TestFlightInfo>> data;
    std::optional<QList<AppInfo>> results;

    // Strict: every required member there with its JSON type (`expired` a
    // text, not a boolean); `data` and `results` may be absent or null; other
    // members are ignored. Any violation fails the whole answer, reason in `error`.
    static std::optional<LookupResult> decode(const QByteArray &body, QString *error);
};
