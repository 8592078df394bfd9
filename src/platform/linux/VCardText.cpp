#include "VCardText.h"

#include <QByteArray>
#include <QStringDecoder>

#include <algorithm>

namespace {

char upper(char c) { return (c >= 'a' && c <= 'z') ? char(c - 'a' + 'A') : c; }

int hexDigit(char c)
{
    if (c >= '0' && c <= '9')
        return c - '0';
    if (c >= 'A' && c <= 'F')
        return c - 'A' + 10;
    if (c >= 'a' && c <= 'f')
        return c - 'a' + 10;
    return -1;
}

QByteArray decodeQuotedPrintable(QByteArrayView in)
{
    QByteArray out;
    out.reserve(in.size());
    for (qsizetype i = 0; i < in.size(); ++i) {
        const char c = in[i];
        if (c == '=' && i + 2 < in.size() && hexDigit(in[i + 1]) >= 0 && hexDigit(in[i + 2]) >= 0) {
            out.append(char(hexDigit(in[i + 1]) * 16 + hexDigit(in[i + 2])));
            i += 2;
        } else {
            out.append(c);
        }
    }
    return out;
}

} // namespace

namespace VCardText {

bool isFoldSpace(char c) { return c == ' ' || c == '\t'; }

// By hand: the reader compares every property name, and a loop the compiler
// sees through is much cheaper than Qt's general comparison here.
bool equalsIgnoringCase(QByteArrayView a, QByteArrayView b)
{
    if (a.size() != b.size())
        return false;
    for (qsizetype i = 0; i < a.size(); ++i) {
        if (upper(a[i]) != upper(b[i]))
            return false;
    }
    return true;
}

QByteArrayView trimmed(QByteArrayView v)
{
    while (!v.isEmpty() && (isFoldSpace(v.front()) || v.front() == '\r' || v.front() == '\n'))
        v = v.sliced(1);
    while (!v.isEmpty() && (isFoldSpace(v.back()) || v.back() == '\r' || v.back() == '\n'))
        v.chop(1);
    return v;
}

qsizetype valueColon(QByteArrayView line)
{
    bool quoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const char c = line[i];
        if (c == '"')
            quoted = !quoted;
        else if (c == ':' && !quoted)
            return i;
    }
    return -1;
}

static QString decodeText(QByteArrayView bytes, QByteArrayView charset)
{
    if (std::all_of(bytes.begin(), bytes.end(), [](char c) { return uchar(c) < 0x80; }))
        return QString::fromLatin1(bytes);
    if (!charset.isEmpty() && !equalsIgnoringCase(charset, "UTF-8") && !equalsIgnoringCase(charset, "UTF8")) {
        QStringDecoder named(charset.toByteArray().constData());
        if (named.isValid()) {
            QString text = named.decode(bytes);
            if (!named.hasError())
                return text;
        }
    }
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    QString text = utf8.decode(bytes);
    if (!utf8.hasError())
        return text;
    // Old phones wrote their own 8-bit text without saying so.
    return QString::fromLatin1(bytes);
}

QList<QStringView> splitUnescaped(QStringView text, QChar separator)
{
    QList<QStringView> parts;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] == u'\\') {
            ++i;
        } else if (text[i] == separator) {
            parts.append(text.sliced(start, i - start));
            start = i + 1;
        }
    }
    parts.append(text.sliced(start));
    return parts;
}

QString unescape(QStringView text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c != u'\\' || i + 1 == text.size()) {
            out.append(c);
            continue;
        }
        const QChar next = text[++i];
        if (next == u'n' || next == u'N')
            out.append(u'\n');
        else if (next == u'\\' || next == u',' || next == u';' || next == u':')
            out.append(next);
        else
            out.append(c).append(next);
    }
    return out;
}

QString decodeValue(QByteArrayView bytes, bool quotedPrintable, QByteArrayView charset)
{
    return quotedPrintable ? decodeText(decodeQuotedPrintable(bytes), charset) : decodeText(bytes, charset);
}

QString plainText(const QString &text)
{
    if (!text.contains(u'\\'))
        return text.trimmed();
    return unescape(text).trimmed();
}

std::pair<QStringView, QStringView> firstTwoComponents(QStringView text)
{
    qsizetype ends[2] = { text.size(), text.size() };
    int found = 0;
    for (qsizetype i = 0; i < text.size() && found < 2; ++i) {
        if (text[i] == u'\\')
            ++i;
        else if (text[i] == u';')
            ends[found++] = i;
    }
    const QStringView first = text.first(ends[0]);
    const QStringView second = ends[0] < text.size() ? text.sliced(ends[0] + 1, ends[1] - ends[0] - 1) : QStringView();
    return { first, second };
}

} // namespace VCardText
