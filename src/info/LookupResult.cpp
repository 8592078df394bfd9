#include "LookupResult.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonParseError>
#include <QJsonValue>

namespace {

QString typeName(const QJsonValue &value)
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

// Walks a JSON value with the decoder's rules and remembers the first failure,
// with the path where it happened ("results[0].trackViewUrl"). After a
// failure every step fails at once.
struct Decoder
{
    QString error;

    bool failed() const { return !error.isEmpty(); }

    void fail(const QString &kind, const QString &path, const QString &detail)
    {
        if (!failed())
            error = kind + QStringLiteral(" at ") + (path.isEmpty() ? QStringLiteral("top level") : path)
                    + QStringLiteral(": ") + detail;
    }

    // `value` as `type` (named `name` in the message), else a failure.
    bool expect(const QJsonValue &value, QJsonValue::Type type, const char *name, const QString &path)
    {
        if (!failed() && value.type() != type)
            fail(QStringLiteral("typeMismatch"), path,
                 QStringLiteral("expected %1 but found ").arg(QLatin1StringView(name)) + typeName(value));
        return !failed();
    }

    QJsonValue required(const QJsonObject &object, const QString &key, const QString &path)
    {
        const QJsonValue value = object.value(key);
        if (!failed() && value.isUndefined())
            fail(QStringLiteral("keyNotFound"), path + key, QStringLiteral("no value"));
        return value;
    }

    QString requiredString(const QJsonObject &object, const QString &key, const QString &path)
    {
        const QJsonValue value = required(object, key, path);
        return expect(value, QJsonValue::String, "a string", path + key) ? value.toString() : QString();
    }

    // Empty after a failure: every later step fails at once anyway.
    QJsonObject asObject(const QJsonValue &value, const QString &path)
    {
        expect(value, QJsonValue::Object, "an object", path);
        return value.toObject();
    }

    // An optional array: absent and null both mean "no value".
    std::optional<QJsonArray> optionalArray(const QJsonObject &object, const QString &key)
    {
        const QJsonValue value = object.value(key);
        if (value.isUndefined() || value.isNull() || !expect(value, QJsonValue::Array, "an array", key))
            return std::nullopt;
        return value.toArray();
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
            const QString path = QStringLiteral("data[%1].").arg(i);
            const QJsonObject item = decoder.asObject(data->at(i), path.chopped(1));
            const QString type = decoder.requiredString(item, QStringLiteral("type"), path);
            const QJsonObject attributes = decoder.asObject(decoder.required(item, QStringLiteral("attributes"), path),
                                                            path + QStringLiteral("attributes"));
            const QString attributesPath = path + QStringLiteral("attributes.");
            builds.append({ type, { decoder.requiredString(attributes, QStringLiteral("version"), attributesPath),
                                    decoder.requiredString(attributes, QStringLiteral("expired"), attributesPath) } });
        }
        result.data = builds;
    }

    if (const std::optional<QJsonArray> results = decoder.optionalArray(top, QStringLiteral("results"))) {
        QList<AppInfo> apps;
        for (qsizetype i = 0; i < results->size() && !decoder.failed(); ++i) {
            const QString path = QStringLiteral("results[%1].").arg(i);
            const QJsonObject item = decoder.asObject(results->at(i), path.chopped(1));
            apps.append({ decoder.requiredString(item, QStringLiteral("version"), path),
                          decoder.requiredString(item, QStringLiteral("trackViewUrl"), path) });
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
