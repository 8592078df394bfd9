#include "LookupResult.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>

namespace {

// Walks a JSON value with the decoder's rules and remembers the first failure,
// with the path where it happened ("results[0].trackViewUrl").
class Decoder
{
public:
    QString error;

    bool failed() const { return !error.isEmpty(); }

    QString requiredString(const QJsonObject &object, const QString &key, const QString &path)
    {
        if (failed())
            return {};
        const QJsonValue value = object.value(key);
        if (value.isUndefined()) {
            fail(QStringLiteral("keyNotFound"), path + key, QStringLiteral("no value"));
            return {};
        }
        if (!value.isString()) {
            fail(QStringLiteral("typeMismatch"), path + key,
                 QStringLiteral("expected a string but found ") + typeName(value));
            return {};
        }
        return value.toString();
    }

    std::optional<QJsonObject> requiredObject(const QJsonObject &object, const QString &key, const QString &path)
    {
        if (failed())
            return std::nullopt;
        const QJsonValue value = object.value(key);
        if (value.isUndefined()) {
            fail(QStringLiteral("keyNotFound"), path + key, QStringLiteral("no value"));
            return std::nullopt;
        }
        return asObject(value, path + key);
    }

    std::optional<QJsonObject> asObject(const QJsonValue &value, const QString &path)
    {
        if (failed())
            return std::nullopt;
        if (!value.isObject()) {
            fail(QStringLiteral("typeMismatch"), path, QStringLiteral("expected an object but found ") + typeName(value));
            return std::nullopt;
        }
        return value.toObject();
    }

    // An optional array: absent and null both mean "no value".
    std::optional<QJsonArray> optionalArray(const QJsonObject &object, const QString &key)
    {
        if (failed())
            return std::nullopt;
        const QJsonValue value = object.value(key);
        if (value.isUndefined() || value.isNull())
            return std::nullopt;
        if (!value.isArray()) {
            fail(QStringLiteral("typeMismatch"), key, QStringLiteral("expected an array but found ") + typeName(value));
            return std::nullopt;
        }
        return value.toArray();
    }

    void fail(const QString &kind, const QString &path, const QString &detail)
    {
        if (!failed())
            error = kind + QStringLiteral(" at ") + (path.isEmpty() ? QStringLiteral("top level") : path)
                    + QStringLiteral(": ") + detail;
    }

private:
    static QString typeName(const QJsonValue &value)
    {
        switch (value.type()) {
        case QJsonValue::Null: return QStringLiteral("null");
        case QJsonValue::Bool: return QStringLiteral("a boolean");
        case QJsonValue::Double: return QStringLiteral("a number");
        case QJsonValue::String: return QStringLiteral("a string");
        case QJsonValue::Array: return QStringLiteral("an array");
        case QJsonValue::Object: return QStringLiteral("an object");
        case QJsonValue::Undefined: break;
        }
        return QStringLiteral("nothing");
    }
};

} // namespace

std::optional<LookupResult> LookupResult::decode(const QByteArray &body, QString *error)
{
    Decoder decoder;
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(body, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        decoder.fail(QStringLiteral("dataCorrupted"), QString(),
                     QStringLiteral("not valid JSON (") + parseError.errorString() + QStringLiteral(" at offset ")
                             + QString::number(parseError.offset) + u')');
    } else if (!document.isObject()) {
        decoder.fail(QStringLiteral("typeMismatch"), QString(), QStringLiteral("expected an object"));
    }

    LookupResult result;
    const QJsonObject top = document.object();

    if (const std::optional<QJsonArray> data = decoder.optionalArray(top, QStringLiteral("data"))) {
        QList<TestFlightInfo> builds;
        for (qsizetype i = 0; i < data->size() && !decoder.failed(); ++i) {
            const QString path = QStringLiteral("data[%1]").arg(i);
            const std::optional<QJsonObject> item = decoder.asObject(data->at(i), path);
            if (!item)
                break;
            TestFlightInfo build;
            build.type = decoder.requiredString(*item, QStringLiteral("type"), path + u'.');
            const std::optional<QJsonObject> attributes =
                    decoder.requiredObject(*item, QStringLiteral("attributes"), path + u'.');
            if (!attributes)
                break;
            const QString attributesPath = path + QStringLiteral(".attributes.");
            build.attributes.version = decoder.requiredString(*attributes, QStringLiteral("version"), attributesPath);
            build.attributes.expired = decoder.requiredString(*attributes, QStringLiteral("expired"), attributesPath);
            builds.append(build);
        }
        result.data = builds;
    }

    if (const std::optional<QJsonArray> results = decoder.optionalArray(top, QStringLiteral("results"))) {
        QList<AppInfo> apps;
        for (qsizetype i = 0; i < results->size() && !decoder.failed(); ++i) {
            const QString path = QStringLiteral("results[%1]").arg(i);
            const std::optional<QJsonObject> item = decoder.asObject(results->at(i), path);
            if (!item)
                break;
            AppInfo app;
            app.version = decoder.requiredString(*item, QStringLiteral("version"), path + u'.');
            app.trackViewUrl = decoder.requiredString(*item, QStringLiteral("trackViewUrl"), path + u'.');
            apps.append(app);
        }
        result.results = apps;
    }

    if (decoder.failed()) {
        if (error)
            *error = decoder.error;
        return std::nullopt;
    }
    return result;
}
