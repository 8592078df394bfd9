#include "KeyValueStore.h"

#include <QRegularExpression>

namespace {

template<typename... F>
struct Overloaded : F...
{
    using F::operator()...;
};

// Text read as a Bool: after blanks, an optional sign and leading zeros, true
// when the next character is Y, y, T, t or a digit 1-9 ("YES", "true", "01",
// "-1"); false otherwise ("0", "false", "no", "").
bool textAsBool(const QString &text)
{
    static const QRegularExpression yes(QStringLiteral("^[+-]?0*[YyTt1-9]"));
    return yes.match(text.trimmed()).hasMatch();
}

// Text read as an Integer: the leading decimal number, after blanks and an
// optional sign; 0 when there is none (or it does not fit).
qint64 textAsInteger(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^[+-]?[0-9]*"));
    return number.match(text.trimmed()).captured().toLongLong();
}

} // namespace

bool KeyValueStore::boolValue(const QString &key) const
{
    return std::visit(Overloaded{ [](bool b) { return b; }, [](qint64 i) { return i != 0; },
                                  [](const QString &s) { return textAsBool(s); }, [](const QDateTime &) { return false; } },
                      object(key).value_or(false));
}

qint64 KeyValueStore::integerValue(const QString &key) const
{
    return std::visit(Overloaded{ [](bool b) { return qint64(b ? 1 : 0); }, [](qint64 i) { return i; },
                                  [](const QString &s) { return textAsInteger(s); }, [](const QDateTime &) { return qint64(0); } },
                      object(key).value_or(qint64(0)));
}

std::optional<QString> KeyValueStore::stringValue(const QString &key) const
{
    const auto value = object(key);
    if (!value)
        return std::nullopt;
    return std::visit(Overloaded{ [](bool b) { return std::optional(QString::number(b ? 1 : 0)); },
                                  [](qint64 i) { return std::optional(QString::number(i)); },
                                  [](const QString &s) { return std::optional(s); },
                                  [](const QDateTime &) { return std::optional<QString>(); } },
                      *value);
}

std::optional<QDateTime> KeyValueStore::dateValue(const QString &key) const
{
    const auto value = object(key);
    if (value && std::holds_alternative<QDateTime>(*value))
        return std::get<QDateTime>(*value);
    return std::nullopt;
}
