#include "DialTarget.h"

namespace {

// 112 and 911, always emergency numbers on mobile networks.
const QStringList standardEmergencyNumbers{ QStringLiteral("112"), QStringLiteral("911") };

bool isPause(QChar c)
{
    return QStringView(u",;pPwW").contains(c);
}

// `text` without its separators, or nothing when it holds other characters.
std::optional<QString> cleaned(const QString &text)
{
    QString kept;
    kept.reserve(text.size());
    for (const QChar c : text) {
        if (QStringView(u" -.()/\u00A0").contains(c))
            continue;
        if (!QStringView(u"0123456789+*#").contains(c) && !isPause(c))
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

bool DialTarget::hasPause() const
{
    const QString all = dialString();
    return std::any_of(all.cbegin(), all.cend(), isPause);
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
