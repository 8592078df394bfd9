#include "DialTarget.h"

namespace {

bool isSeparator(QChar c)
{
    return c == u' ' || c == u'-' || c == u'.' || c == u'(' || c == u')' || c == u'/' || c == QChar::Nbsp;
}

bool isPause(QChar c)
{
    return c == u',' || c == u';' || c == u'p' || c == u'P' || c == u'w' || c == u'W';
}

bool isDialChar(QChar c)
{
    return (c >= u'0' && c <= u'9') || c == u'+' || c == u'*' || c == u'#' || isPause(c);
}

// `text` without its separators, or nothing when it holds other characters.
std::optional<QString> cleaned(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar c : text) {
        if (isSeparator(c))
            continue;
        if (!isDialChar(c))
            return std::nullopt;
        kept.append(c);
    }
    return kept;
}

bool hasDigit(const QString &text)
{
    return std::any_of(text.cbegin(), text.cend(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

} // namespace

const QStringList DialTarget::standardEmergencyNumbers{ QStringLiteral("112"), QStringLiteral("911") };

bool DialTarget::hasPause() const
{
    return std::any_of(number.cbegin(), number.cend(), isPause) || std::any_of(prefix.cbegin(), prefix.cend(), isPause);
}

std::optional<DialTarget> DialTarget::of(const DialRequest &request, const QStringList &emergencyNumbers)
{
    const std::optional<QString> prefix = cleaned(request.prefix);
    const std::optional<QString> number = cleaned(request.number);
    if (!prefix || !number || !hasDigit(*number))
        return std::nullopt;
    const bool serviceCode = (number->startsWith(u'*') || number->startsWith(u'#')) && number->endsWith(u'#');
    if (serviceCode)
        return std::nullopt;
    DialTarget target{ *prefix, *number };
    if (standardEmergencyNumbers.contains(*number) || emergencyNumbers.contains(*number)) {
        // Networks show the caller to emergency services anyway, and a
        // prefixed emergency number may not be recognised as one.
        target.prefix.clear();
        target.isEmergency = true;
    }
    return target;
}
