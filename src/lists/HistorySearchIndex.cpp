#include "HistorySearchIndex.h"

#include <QHash>
#include <QHashFunctions>
#include <QStringView>

#include <cstring>
#include <vector>

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
    m_combinationStarts = { 0 };
    m_combinationUses.clear();
    m_rowCombinations.clear();
    m_slots.clear();
    m_deadChars = 0;
    m_asciiCounts.fill(0);
}

qsizetype HistorySearchIndex::memoryBytes() const
{
    return qsizetype(sizeof(*this)) + m_text.capacity() * qsizetype(sizeof(QChar))
        + (m_combinationStarts.capacity() + m_combinationUses.capacity() + m_rowCombinations.capacity())
        * qsizetype(sizeof(quint32))
        + m_slots.capacity() * qsizetype(sizeof(qint32));
}

void HistorySearchIndex::rebuild(const QList<HistoryData> &records)
{
    clear();
    m_rowCombinations.reserve(records.size());
    // Most records repeat an earlier one word for word: those take its
    // combination without folding their text again.
    QHash<size_t, qsizetype> earlier; // the fields' hash, the first record with it
    for (qsizetype i = 0; i < records.size(); ++i) {
        const HistoryData &r = records.at(i);
        const size_t hash = qHashMulti(0, r.firstName, r.lastName, r.telephone);
        const auto seen = earlier.constFind(hash);
        if (seen == earlier.cend()) {
            earlier.insert(hash, i);
        } else {
            const HistoryData &first = records.at(*seen);
            if (first.firstName == r.firstName && first.lastName == r.lastName && first.telephone == r.telephone) {
                const quint32 combination = m_rowCombinations.at(*seen);
                ++m_combinationUses[combination];
                m_rowCombinations.append(combination);
                continue;
            }
        }
        appendRecord(r);
    }
    m_text.squeeze();
    m_combinationStarts.squeeze();
    m_combinationUses.squeeze();
}

void HistorySearchIndex::append(const QList<HistoryData> &records, qsizetype from)
{
    for (qsizetype i = from; i < records.size(); ++i)
        appendRecord(records.at(i));
}

void HistorySearchIndex::appendRecord(const HistoryData &record)
{
    // The record's text goes to the end of the buffer first; if some
    // combination already has it, it is taken back off again.
    const qsizetype start = m_text.size();
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
                if (c >= u'A' && c <= u'Z')
                    begin[i] = QChar(char16_t(c + 32));
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

    const size_t hash = qHash(QStringView(m_text).sliced(start));
    qsizetype combination = findCombination(start, m_text.size(), hash);
    if (combination >= 0) {
        m_text.truncate(start);
        if (m_combinationUses[combination]++ == 0)
            m_deadChars -= m_combinationStarts.at(combination + 1) - m_combinationStarts.at(combination);
    } else {
        for (const QChar c : QStringView(m_text).sliced(start)) {
            if (c.unicode() < 128)
                ++m_asciiCounts[c.unicode()];
        }
        combination = m_combinationUses.size();
        m_combinationStarts.append(quint32(m_text.size()));
        m_combinationUses.append(1);
        if ((combination + 1) * 2 > m_slots.size())
            growSlots(combination + 1); // places the new combination too
        else
            insertSlot(quint32(combination), hash);
    }
    m_rowCombinations.append(quint32(combination));
}

size_t HistorySearchIndex::combinationHash(quint32 combination) const
{
    const qsizetype start = m_combinationStarts.at(combination);
    return qHash(QStringView(m_text).sliced(start, m_combinationStarts.at(combination + 1) - start));
}

qsizetype HistorySearchIndex::findCombination(qsizetype start, qsizetype end, size_t hash) const
{
    if (m_slots.isEmpty())
        return -1;
    const QStringView wanted = QStringView(m_text).sliced(start, end - start);
    const size_t mask = size_t(m_slots.size() - 1);
    for (size_t i = hash & mask;; i = (i + 1) & mask) {
        const qint32 combination = m_slots.at(i);
        if (combination < 0)
            return -1;
        const qsizetype from = m_combinationStarts.at(combination);
        const qsizetype to = m_combinationStarts.at(combination + 1);
        if (to - from == wanted.size() && QStringView(m_text).sliced(from, to - from) == wanted)
            return combination;
    }
}

void HistorySearchIndex::insertSlot(quint32 combination, size_t hash)
{
    const size_t mask = size_t(m_slots.size() - 1);
    size_t i = hash & mask;
    while (m_slots.at(i) >= 0)
        i = (i + 1) & mask;
    m_slots[i] = qint32(combination);
}

void HistorySearchIndex::growSlots(qsizetype wanted)
{
    // At most half full, so that a probe ends soon.
    qsizetype size = 16;
    while (size < wanted * 2)
        size *= 2;
    if (size <= m_slots.size())
        return;
    m_slots.fill(-1, size);
    for (qsizetype c = 0; c < m_combinationUses.size(); ++c)
        insertSlot(quint32(c), combinationHash(quint32(c)));
}

void HistorySearchIndex::remove(qsizetype first, qsizetype last)
{
    if (first < 0 || last < first || last >= m_rowCombinations.size())
        return;
    for (qsizetype i = first; i <= last; ++i) {
        const quint32 combination = m_rowCombinations.at(i);
        if (--m_combinationUses[combination] == 0)
            m_deadChars += m_combinationStarts.at(combination + 1) - m_combinationStarts.at(combination);
    }
    m_rowCombinations.remove(first, last - first + 1);
}

QList<int> HistorySearchIndex::search(const QString &needle, const QList<HistoryData> &records) const
{
    QList<int> rows;
    if (needle.isEmpty())
        return rows;
    if (needle.contains(separator))
        return slowSearch(needle, records, nullptr);
    const QString folded = fold(needle);
    const qsizetype combinations = m_combinationUses.size();
    const qsizetype anchor = rarestCharacter(folded);
    // One pass over the combinations' text: find the next hit, credit it to
    // the combination it falls in and go on from that combination's end. A
    // hit never spans two, as the text searched for holds no separator.
    std::vector<unsigned char> found(size_t(combinations), 0);
    qsizetype matchingRows = 0;
    qsizetype from = 0;
    qsizetype c = 0;
    while (c < combinations) {
        const qsizetype hit = find(folded, anchor, from);
        if (hit < 0)
            break;
        while (m_combinationStarts.at(c + 1) <= hit)
            ++c;
        found[size_t(c)] = 1;
        matchingRows += m_combinationUses.at(c);
        from = m_combinationStarts.at(c + 1);
        ++c;
    }
    if (matchingRows == 0)
        return rows;
    // Then the records whose combination was found, in order.
    // Every row number is written and kept only when its combination was
    // found: no branch to mispredict. The combinations' uses add up to the
    // rows found, so the last one found ends the loop.
    rows.resize(matchingRows);
    int *row = rows.data();
    const int *end = row + matchingRows;
    const unsigned char *isFound = found.data();
    const quint32 *combination = m_rowCombinations.constData();
    const qsizetype count = m_rowCombinations.size();
    for (qsizetype r = 0; r < count && row != end; ++r) {
        *row = int(r);
        row += isFound[combination[r]];
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
    if (within.size() > m_rowCombinations.size() / 2)
        return search(needle, records);
    const QString folded = fold(needle);
    const QChar *data = m_text.constData();
    // Each combination is looked at once however many of the rows use it:
    // 0 not yet, 1 it matches, 2 it does not.
    std::vector<unsigned char> verdicts(size_t(m_combinationUses.size()), 0);
    rows.resize(within.size());
    int *row = rows.data();
    const qsizetype count = m_rowCombinations.size();
    for (int r : within) {
        if (r < 0 || r >= count)
            continue;
        const quint32 combination = m_rowCombinations.at(r);
        unsigned char &verdict = verdicts[combination];
        if (verdict == 0) {
            const qsizetype start = m_combinationStarts.at(combination);
            const qsizetype length = m_combinationStarts.at(combination + 1) - 1 - start;
            verdict = segmentContains(data + start, length, folded.constData(), folded.size()) ? 1 : 2;
        }
        *row = r;
        row += verdict == 1;
    }
    rows.resize(row - rows.constData());
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
