#include "HistorySearchIndex.h"

#include <QStringView>

#include <cstring>

namespace {

// Ends every field in the buffer. A noncharacter: it stands for nothing a
// person types, and a search for it takes the slow road.
constexpr QChar separator(char16_t(0xFFFF));

// Whether the `n` characters at `text` hold the `m` at `needle`: a plain
// loop, cheaper than a general search on texts as short as a record's.
bool segmentContains(const QChar *text, qsizetype n, const QChar *needle, qsizetype m)
{
    if (m == 0 || m > n)
        return m == 0;
    const char16_t first = needle[0].unicode();
    for (qsizetype i = 0; i + m <= n; ++i) {
        if (text[i].unicode() == first && std::memcmp(text + i + 1, needle + 1, size_t(m - 1) * sizeof(QChar)) == 0)
            return true;
    }
    return false;
}

} // namespace

QString HistorySearchIndex::fold(const QString &text)
{
    // Character by character (simple case folding), the way a
    // case-insensitive comparison of two strings matches them.
    QString folded;
    folded.reserve(text.size());
    for (const char32_t c : QStringView(text).toUcs4())
        folded.append(QChar::fromUcs4(QChar::toCaseFolded(c)));
    return folded;
}

bool HistorySearchIndex::matches(const HistoryData &record, const QString &needle)
{
    if (needle.isEmpty())
        return false;
    const QString folded = fold(needle);
    for (const QString *field : { &record.firstName, &record.lastName, &record.telephone }) {
        if (!field->isNull() && fold(*field).contains(folded))
            return true;
    }
    return false;
}

void HistorySearchIndex::clear()
{
    m_text.clear();
    m_starts.clear();
    m_ends.clear();
    m_deadChars = 0;
    m_asciiCounts.fill(0);
}

void HistorySearchIndex::rebuild(const QList<HistoryData> &records)
{
    clear();
    qsizetype chars = 0;
    for (const HistoryData &r : records)
        chars += r.firstName.size() + r.lastName.size() + r.telephone.size() + 3;
    m_text.reserve(chars);
    m_starts.reserve(records.size());
    m_ends.reserve(records.size());
    for (const HistoryData &r : records)
        appendRecord(r);
}

void HistorySearchIndex::append(const QList<HistoryData> &records, qsizetype from)
{
    for (qsizetype i = from; i < records.size(); ++i)
        appendRecord(records.at(i));
}

void HistorySearchIndex::appendRecord(const HistoryData &record)
{
    m_starts.append(m_text.size());
    for (const QString *field : { &record.firstName, &record.lastName, &record.telephone }) {
        // Folded in place in the buffer: no string per field.
        const qsizetype at = m_text.size();
        const qsizetype length = field->size();
        m_text.append(*field);
        QChar *begin = m_text.data() + at;
        bool simple = true;
        for (qsizetype i = 0; i < length; ++i) {
            char16_t c = begin[i].unicode();
            if (c < 0x80) {
                if (c >= u'A' && c <= u'Z') {
                    c += 32;
                    begin[i] = QChar(c);
                }
                ++m_asciiCounts[c];
            } else if (QChar::isSurrogate(c)) {
                simple = false;
                break;
            } else {
                const char32_t folded = QChar::toCaseFolded(char32_t(c));
                if (folded > 0xFFFF) {
                    simple = false;
                    break;
                }
                begin[i] = folded == separator.unicode() ? QChar(QChar::ReplacementCharacter) : QChar(char16_t(folded));
            }
        }
        if (!simple) {
            // Characters beyond the basic plane: fold the whole field anew.
            m_text.truncate(at);
            m_text.append(fold(*field).replace(separator, QChar(QChar::ReplacementCharacter)));
        }
        m_text.append(separator);
    }
    m_ends.append(m_text.size() - 1);
}

void HistorySearchIndex::remove(qsizetype first, qsizetype last)
{
    if (first < 0 || last < first || last >= m_starts.size())
        return;
    for (qsizetype i = first; i <= last; ++i)
        m_deadChars += m_ends.at(i) + 1 - m_starts.at(i);
    const qsizetype n = last - first + 1;
    m_starts.remove(first, n);
    m_ends.remove(first, n);
}

QList<int> HistorySearchIndex::search(const QString &needle, const QList<HistoryData> &records) const
{
    QList<int> rows;
    if (needle.isEmpty())
        return rows;
    if (needle.contains(separator))
        return slowSearch(needle, records, nullptr);
    const QString folded = fold(needle);
    const QStringView text(m_text);
    const qsizetype count = m_starts.size();
    const qsizetype anchor = rarestCharacter(folded);
    rows.reserve(count);
    // One pass over the buffer: find the next hit, credit it to the record
    // it falls in and go on from that record's end.
    qsizetype from = 0;
    qsizetype r = 0;
    while (r < count) {
        if (from < m_starts.at(r))
            from = m_starts.at(r);
        const qsizetype hit = find(folded, anchor, from);
        if (hit < 0)
            break;
        while (r < count && m_ends.at(r) <= hit)
            ++r;
        if (r == count)
            break;
        if (hit < m_starts.at(r)) {
            // In text a removed record left behind.
            from = m_starts.at(r);
            continue;
        }
        rows.append(int(r));
        from = m_ends.at(r);
        ++r;
    }
    return rows;
}

qsizetype HistorySearchIndex::rarestCharacter(QStringView folded) const
{
    qsizetype best = 0;
    qsizetype bestCount = -1;
    for (qsizetype i = 0; i < folded.size(); ++i) {
        const char16_t c = folded.at(i).unicode();
        const qsizetype n = c < 128 ? m_asciiCounts[c] : 0; // anything else is rare in names and numbers
        if (bestCount < 0 || n < bestCount) {
            best = i;
            bestCount = n;
        }
    }
    return best;
}

qsizetype HistorySearchIndex::find(QStringView folded, qsizetype anchor, qsizetype from) const
{
    const QStringView text(m_text);
    const qsizetype length = folded.size();
    if (length == 1)
        return text.indexOf(folded.front(), from);
    const QChar key = folded.at(anchor);
    qsizetype at = from + anchor;
    while (at < text.size()) {
        const qsizetype hit = text.indexOf(key, at);
        if (hit < 0)
            return -1;
        const qsizetype start = hit - anchor;
        if (start + length > text.size())
            return -1;
        if (text.sliced(start, length) == folded)
            return start;
        at = hit + 1;
    }
    return -1;
}

QList<int> HistorySearchIndex::search(const QString &needle, const QList<HistoryData> &records,
                                      const QList<int> &within) const
{
    QList<int> rows;
    if (needle.isEmpty())
        return rows;
    if (needle.contains(separator))
        return slowSearch(needle, records, &within);
    // Among most of the records one pass over all of them is quicker, and
    // finds the same rows: a longer text only matches where a shorter one did.
    if (within.size() > m_starts.size() / 2)
        return search(needle, records);
    const QString folded = fold(needle);
    const QChar *data = m_text.constData();
    rows.reserve(within.size());
    for (int r : within) {
        if (r < 0 || r >= m_starts.size())
            continue;
        const qsizetype start = m_starts.at(r);
        if (segmentContains(data + start, m_ends.at(r) - start, folded.constData(), folded.size()))
            rows.append(r);
    }
    return rows;
}

QList<int> HistorySearchIndex::slowSearch(const QString &needle, const QList<HistoryData> &records,
                                          const QList<int> *within) const
{
    QList<int> rows;
    if (within) {
        for (int r : *within) {
            if (r >= 0 && r < records.size() && matches(records.at(r), needle))
                rows.append(r);
        }
    } else {
        for (qsizetype r = 0; r < records.size(); ++r) {
            if (matches(records.at(r), needle))
                rows.append(int(r));
        }
    }
    return rows;
}
