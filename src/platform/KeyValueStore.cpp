#include "KeyValueStore.h"

namespace {

// Text read as a Bool: after blanks, an optional sign and leading zeros, true
// when the next character is Y, y, T, t or a digit 1-9 ("YES", "true", "01",
// "-1"); false otherwise ("0", "false", "no", "").
bool textAsBool(const QString &text)
{
    qsizetype i = 0;
    while (i < text.size() && text[i].isSpace())
        ++i;
    if (i < text.size() && (text[i] == u'+' || text[i] == u'-'))
        ++i;
    while (i < text.size() && text[i] == u'0')
        ++i;
    if (i == text.size())
        return false;
    const QChar c = text[i];
    return c == u'Y' || c == u'y' || c == u'T' || c == u't' || (c >= u'1' && c <= u'9');
}

// Text read as an Integer: the leading decimal number, after blanks and an
// optional sign; 0 when there is none.
qint64 textAsInteger(const QString &text)
{
    const QString trimmed = text.trimmed();
    qsizetype end = 0;
    if (end < trimmed.size() && (trimmed[end] == u'+' || trimmed[end] == u'-'))
        ++end;
    while (end < trimmed.size() && trimmed[end].isDigit() && trimmed[end].unicode() < 128)
        ++end;
    bool ok = false;
    const qint64 value = trimmed.left(end).toLongLong(&ok);
    return ok ? value : 0;
}

} // namespace

bool KeyValueStore::boolValue(const QString &key) const
{
    const auto value = object(key);
    if (!value)
        return false;
    if (const bool *b = std::get_if<bool>(&*value))
        return *b;
    if (const qint64 *i = std::get_if<qint64>(&*value))
        return *i != 0;
    if (const QString *s = std::get_if<QString>(&*value))
        return textAsBool(*s);
    return false;
}

qint64 KeyValueStore::integerValue(const QString &key) const
{
    const auto value = object(key);
    if (!value)
        return 0;
    if (const qint64 *i = std::get_if<qint64>(&*value))
        return *i;
    if (const bool *b = std::get_if<bool>(&*value))
        return *b ? 1 : 0;
    if (const QString *s = std::get_if<QString>(&*value))
        return textAsInteger(*s);
    return 0;
}

std::optional<QString> KeyValueStore::stringValue(const QString &key) const
{
    const auto value = object(key);
    if (!value)
        return std::nullopt;
    if (const QString *s = std::get_if<QString>(&*value))
        return *s;
    if (const qint64 *i = std::get_if<qint64>(&*value))
        return QString::number(*i);
    if (const bool *b = std::get_if<bool>(&*value))
        return QStringLiteral("%1").arg(*b ? 1 : 0);
    return std::nullopt;
}

std::optional<QDateTime> KeyValueStore::dateValue(const QString &key) const
{
    const auto value = object(key);
    if (!value)
        return std::nullopt;
    if (const QDateTime *d = std::get_if<QDateTime>(&*value))
        return *d;
    return std::nullopt;
}
