#pragma once

#include "HistoryData.h"

#include <QList>
#include <QString>

#include <array>

// The searchable text of a list of history records, kept for fast
// case-insensitive "contains" searches over many records.
//
// Calls repeat the same people, so the text is kept once per distinct
// combination of first name, last name and telephone, and each record only
// names its combination. A combination's fields are case-folded and laid one
// after the other in a single buffer, each followed by a separator, so a
// search is one pass over the contiguous text of the combinations and then one
// over the records' combination numbers. Removing records only forgets them;
// a combination no record uses any more stays in the buffer (a new record may
// use it again) and is dropped at the next rebuild.
class HistorySearchIndex
{
public:
    // Indexes `records` from scratch.
    void rebuild(const QList<HistoryData> &records);
    // Indexes records[from..] after the ones already indexed.
    void append(const QList<HistoryData> &records, qsizetype from);
    // Forgets the indexed records first..last.
    void remove(qsizetype first, qsizetype last);
    void clear();

    qsizetype size() const { return m_rowCombinations.size(); }
    // How many distinct combinations the buffer holds, used or not.
    qsizetype combinationCount() const { return m_combinationUses.size(); }
    // The memory the index holds, in bytes.
    qsizetype memoryBytes() const;
    // Whether the text of combinations no record uses outweighs the live text.
    bool wantsRebuild() const { return m_deadChars > 4096 && m_deadChars > m_text.size() / 2; }

    // The rows, ascending, whose first name, last name or telephone contains
    // `needle` ignoring case. `records` is the indexed list; an empty needle
    // matches nothing here (the caller shows everything instead).
    QList<int> search(const QString &needle, const QList<HistoryData> &records) const;
    // The same for a text that contains the one that found `within`
    // (ascending rows): only those rows can match.
    QList<int> search(const QString &needle, const QList<HistoryData> &records, const QList<int> &within) const;

    // The form both sides of a comparison are brought to.
    static QString fold(const QString &text);
    // Whether `record` matches `needle` the way search() decides, field by field.
    static bool matches(const HistoryData &record, const QString &needle);

private:
    void appendRecord(const HistoryData &record);
    // The combination whose text is m_text[start..end), or -1.
    qsizetype findCombination(qsizetype start, qsizetype end, size_t hash) const;
    void insertSlot(quint32 combination, size_t hash);
    void growSlots(qsizetype wanted);
    size_t combinationHash(quint32 combination) const;
    // Where `folded` next occurs at or after `from`, looking first for its
    // character at `anchor`.
    qsizetype find(QStringView folded, qsizetype anchor, qsizetype from) const;
    // The position in `folded` of the character the text holds least often.
    qsizetype rarestCharacter(QStringView folded) const;
    QList<int> slowSearch(const QString &needle, const QList<HistoryData> &records, const QList<int> *within) const;

    QString m_text;
    // Where each combination's text begins in m_text, and one more entry for
    // the end of the last one: a combination ends (with a separator) just
    // before the next one begins.
    QList<quint32> m_combinationStarts{ 0 };
    // How many indexed records use each combination.
    QList<quint32> m_combinationUses;
    // Each indexed record's combination.
    QList<quint32> m_rowCombinations;
    // Open-addressing table from a combination's text to its number: a
    // combination number, or -1 for a free slot. Its size is a power of two.
    QList<qint32> m_slots;
    // The text of combinations no record uses.
    qsizetype m_deadChars = 0;
    // How often each ASCII character occurs in the text: a search looks
    // first for the rarest one of its text.
    std::array<qsizetype, 128> m_asciiCounts{};
};
