#pragma once

#include "HistoryData.h"

#include <QList>
#include <QString>

#include <array>

// The searchable text of a list of history records, kept for fast
// case-insensitive "contains" searches over many records.
//
// Each record's first name, last name and telephone are case-folded and laid
// one after the other in a single buffer, each followed by a separator, so a
// search is one pass over contiguous text instead of three string searches
// per record. Removing records only forgets their place in the buffer; the
// text left behind is skipped and dropped at the next rebuild.
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

    qsizetype size() const { return m_starts.size(); }
    // Whether the left-behind text of removed records outweighs the live text.
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
    // Where `folded` next occurs at or after `from`, looking first for its
    // character at `anchor`.
    qsizetype find(QStringView folded, qsizetype anchor, qsizetype from) const;
    // The position in `folded` of the character the text holds least often.
    qsizetype rarestCharacter(QStringView folded) const;
    QList<int> slowSearch(const QString &needle, const QList<HistoryData> &records, const QList<int> *within) const;

    QString m_text;
    QList<qsizetype> m_starts; // where each record's text begins in m_text
    QList<qsizetype> m_ends;   // where it ends (a separator stands there)
    qsizetype m_deadChars = 0;
    // How often each ASCII character occurs in the text (removals not
    // counted off): a search looks first for the rarest one of its text.
    std::array<qsizetype, 128> m_asciiCounts{};
};
