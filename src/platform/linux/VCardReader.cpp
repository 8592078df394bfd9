#include "VCardReader.h"

#include "VCardText.h"

#include <QByteArray>
#include <QUrl>

#include <optional>

namespace {

using namespace VCardText;

struct Card
{
    bool broken = false;
    bool version21 = false;
    std::optional<QString> n;
    std::optional<QString> fn;
    // Numbers as written; a tel: URI (version 4.0) loses its scheme later.
    QStringList tel;

    // One name component; from version 3.0 on, commas separate several
    // values of it (e.g. two given names), shown with a blank between.
    QString component(QStringView text) const
    {
        const bool escaped = text.contains(u'\\');
        const bool several = !version21 && text.contains(u',');
        if (!escaped && !several)
            return text.trimmed().toString();
        if (!several)
            return unescape(text).trimmed();
        QStringList values;
        for (QStringView value : splitUnescaped(text, u',')) {
            const QString one = unescape(value).trimmed();
            if (!one.isEmpty())
                values.append(one);
        }
        return values.join(u' ');
    }

    AddressBookContact contact() const
    {
        AddressBookContact person;
        if (n) {
            const auto [family, given] = firstTwoComponents(*n);
            person.familyName = component(family);
            person.givenName = component(given);
        }
        if (person.familyName.isEmpty() && person.givenName.isEmpty() && fn)
            person.givenName = plainText(*fn);
        person.phoneNumbers.reserve(tel.size());
        for (const QString &text : tel) {
            QString number = plainText(text);
            if (number.startsWith(QLatin1StringView("tel:"), Qt::CaseInsensitive))
                number = QUrl::fromPercentEncoding(number.sliced(4).toUtf8()).trimmed();
            if (!number.isEmpty())
                person.phoneNumbers.append(number);
        }
        return person;
    }
};

bool isPropertyNameChar(char c)
{
    return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_'
        || c == '.';
}

class Parser
{
public:
    Parser(QByteArrayView bytes, const std::function<void(AddressBookContact &&)> &deliver,
           const std::atomic<bool> *stop)
        : m_data(bytes), m_deliver(deliver), m_stop(stop)
    {
    }

    VCardReader::Summary run()
    {
        QByteArrayView line;
        while (!(m_stop && m_stop->load(std::memory_order_relaxed)) && nextLogicalLine(line)) {
            if (!m_tooLong)
                handle(line);
        }
        if (m_inCard)
            ++m_summary.brokenCards;
        return m_summary;
    }

private:
    // The next physical line without its line break; false at the end.
    bool nextPhysical(QByteArrayView &line)
    {
        if (m_pos >= m_data.size())
            return false;
        const qsizetype start = m_pos;
        qsizetype end = start;
        while (end < m_data.size() && m_data[end] != '\n' && m_data[end] != '\r')
            ++end;
        line = m_data.sliced(start, end - start);
        if (end < m_data.size() && m_data[end] == '\r')
            ++end;
        if (end < m_data.size() && m_data[end] == '\n')
            ++end;
        m_pos = end;
        return true;
    }

    bool nextIsFolded() const { return m_pos < m_data.size() && isFoldSpace(m_data[m_pos]); }

    // Whether a property is quoted-printable, learnt while its line grows:
    // each byte is looked at once, so that joining stays linear.
    struct ValueStart
    {
        qsizetype seen = 0;
        bool quoted = false;
        bool found = false;
        bool quotedPrintable = false;

        bool isQuotedPrintable(QByteArrayView line)
        {
            for (; !found && seen < line.size(); ++seen) {
                if (line[seen] == '"') {
                    quoted = !quoted;
                } else if (line[seen] == ':' && !quoted) {
                    found = true;
                    quotedPrintable = seen > 0
                            && QLatin1StringView(line.first(seen)).contains(QLatin1StringView("QUOTED-PRINTABLE"), Qt::CaseInsensitive);
                }
            }
            return quotedPrintable;
        }
    };

    // Adds a continuation to the line; past the bound only its last byte is
    // kept, enough to see whether a quoted-printable line goes on.
    void appendPiece(QByteArrayView piece)
    {
        if (!m_tooLong && m_buffer.size() + piece.size() <= VCardReader::maxLineBytes) {
            m_buffer.append(piece);
            return;
        }
        m_tooLong = true;
        if (m_buffer.isEmpty())
            m_buffer.append(' ');
        if (!piece.isEmpty())
            m_buffer[m_buffer.size() - 1] = piece.back();
    }

    // One property: folded continuation lines joined, and quoted-printable
    // soft line breaks ("=" at the end of a line) removed. `m_tooLong` tells
    // a line longer than the bound, which is then not kept.
    bool nextLogicalLine(QByteArrayView &line)
    {
        QByteArrayView physical;
        if (!nextPhysical(physical))
            return false;
        ValueStart start;
        m_tooLong = physical.size() > VCardReader::maxLineBytes;
        const bool continues = nextIsFolded() || (physical.endsWith('=') && start.isQuotedPrintable(physical));
        if (!continues) {
            line = physical;
            return true;
        }
        m_buffer.clear();
        appendPiece(physical);
        for (;;) {
            if (m_buffer.endsWith('=') && m_pos < m_data.size() && start.isQuotedPrintable(m_buffer)) {
                // A soft line break; some writers also indent what follows.
                nextPhysical(physical);
                m_buffer.chop(1);
                appendPiece(!physical.isEmpty() && isFoldSpace(physical.front()) ? physical.sliced(1) : physical);
            } else if (nextIsFolded()) {
                nextPhysical(physical);
                appendPiece(physical.sliced(1));
            } else {
                break;
            }
        }
        line = m_buffer;
        return true;
    }

    void handle(QByteArrayView line)
    {
        if (m_inBase64) {
            // Version 2.1 lets base64 data run on unindented lines up to a blank one.
            if (trimmed(line).isEmpty()) {
                m_inBase64 = false;
                return;
            }
            if (valueColon(line) < 0)
                return;
            m_inBase64 = false;
        }
        if (trimmed(line).isEmpty())
            return;

        const qsizetype colon = valueColon(line);
        if (colon < 0) {
            if (m_inCard)
                m_card.broken = true;
            return;
        }
        const QByteArrayView head = line.first(colon);
        const QByteArrayView value = line.sliced(colon + 1);

        // [group.]name, then ;parameters.
        qsizetype nameEnd = 0;
        while (nameEnd < head.size() && head[nameEnd] != ';')
            ++nameEnd;
        QByteArrayView name = trimmed(head.first(nameEnd));
        bool nameValid = !name.isEmpty();
        for (const char c : name)
            nameValid = nameValid && isPropertyNameChar(c);
        if (const qsizetype dot = name.lastIndexOf('.'); dot >= 0)
            name = name.sliced(dot + 1);

        if (equalsIgnoringCase(name, "BEGIN") && equalsIgnoringCase(trimmed(value), "VCARD")) {
            if (m_inCard)
                ++m_summary.brokenCards;
            m_inCard = true;
            m_card = Card();
            return;
        }
        if (!m_inCard)
            return;
        if (equalsIgnoringCase(name, "END") && equalsIgnoringCase(trimmed(value), "VCARD")) {
            m_inCard = false;
            if (m_card.broken) {
                ++m_summary.brokenCards;
            } else {
                ++m_summary.contacts;
                m_deliver(m_card.contact());
            }
            return;
        }
        if (!nameValid || name.isEmpty()) {
            m_card.broken = true;
            return;
        }

        bool quotedPrintable = false;
        QByteArrayView charset;
        bool base64 = false;
        qsizetype p = nameEnd;
        while (p < head.size()) {
            // head[p] is ';': one parameter up to the next ';' outside quotes.
            qsizetype q = p + 1;
            bool quoted = false;
            while (q < head.size() && (quoted || head[q] != ';')) {
                if (head[q] == '"')
                    quoted = !quoted;
                ++q;
            }
            const QByteArrayView param = trimmed(head.sliced(p + 1, q - p - 1));
            const qsizetype eq = param.indexOf('=');
            const QByteArrayView key = eq < 0 ? QByteArrayView() : trimmed(param.first(eq));
            QByteArrayView paramValue = trimmed(eq < 0 ? param : param.sliced(eq + 1));
            if (paramValue.size() >= 2 && paramValue.front() == '"' && paramValue.back() == '"')
                paramValue = paramValue.sliced(1, paramValue.size() - 2);
            if (eq < 0 || equalsIgnoringCase(key, "ENCODING")) {
                if (equalsIgnoringCase(paramValue, "QUOTED-PRINTABLE"))
                    quotedPrintable = true;
                else if (equalsIgnoringCase(paramValue, "BASE64") || equalsIgnoringCase(paramValue, "B"))
                    base64 = true;
            } else if (equalsIgnoringCase(key, "CHARSET")) {
                charset = paramValue;
            }
            p = q;
        }

        if (equalsIgnoringCase(name, "VERSION")) {
            m_card.version21 = trimmed(value) == "2.1";
        } else if (equalsIgnoringCase(name, "N")) {
            if (!m_card.n)
                m_card.n = decodeValue(value, quotedPrintable, charset);
        } else if (equalsIgnoringCase(name, "FN")) {
            if (!m_card.fn)
                m_card.fn = decodeValue(value, quotedPrintable, charset);
        } else if (equalsIgnoringCase(name, "TEL")) {
            m_card.tel.append(decodeValue(value, quotedPrintable, charset));
        } else if (base64 && m_card.version21) {
            m_inBase64 = true;
        }
    }

    QByteArrayView m_data;
    const std::function<void(AddressBookContact &&)> &m_deliver;
    const std::atomic<bool> *m_stop;
    qsizetype m_pos = 0;
    QByteArray m_buffer;
    bool m_tooLong = false;
    bool m_inCard = false;
    bool m_inBase64 = false;
    Card m_card;
    VCardReader::Summary m_summary;
};

} // namespace

VCardReader::Summary VCardReader::read(QByteArrayView bytes, const std::function<void(AddressBookContact &&)> &deliver,
                                       const std::atomic<bool> *stop)
{
    return Parser(bytes, deliver, stop).run();
}
