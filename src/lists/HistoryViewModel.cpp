#include "HistoryViewModel.h"

#include "HistoryCallDataService.h"
#include "KeyValueStore.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <algorithm>

namespace {

// How many steps of one typing are remembered.
constexpr qsizetype maximumSteps = 32;

bool sameText(const QString &a, const QString &b)
{
    if (a.isNull() != b.isNull() || a.size() != b.size())
        return false;
    return a.constData() == b.constData() || a == b;
}

// The same record with the same contents (the store may give a freed id to a
// new record).
bool sameRecord(const HistoryData &a, const HistoryData &b)
{
    return a.objectId == b.objectId && a.callHidden == b.callHidden && sameText(a.telephone, b.telephone)
        && sameText(a.lastName, b.lastName) && sameText(a.firstName, b.firstName) && sameText(a.time, b.time);
}

// What a call hands on for a field the record does not have.
QString textOrEmpty(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace

HistoryViewModel::HistoryViewModel(QObject *parent)
    : HistoryViewModel(HistoryCallDataService::shared(), UserDefaultsService::shared(), Service::shared(), parent)
{
}

HistoryViewModel::HistoryViewModel(HistoryCallDataService *historyDataService, UserDefaultsService *defaultsService,
                                   Service *service, QObject *parent)
    : QObject(parent),
      m_historyDataService(historyDataService),
      m_defaultsService(defaultsService),
      m_service(service)
{
    // Every list the store publishes replaces ours; the connection ends with
    // this object.
    connect(m_historyDataService, &HistoryCallDataService::savedEntitiesChanged, this,
            [this] { receive(m_historyDataService->savedEntities()); });
    receive(m_historyDataService->savedEntities());
}

void HistoryViewModel::receive(const QList<HistoryData> &records)
{
    if (m_indexValid)
        syncIndex(records);
    m_historyListArray = records;
    m_steps.clear();
    emit historyListArrayChanged();
    applySearch();
}

void HistoryViewModel::syncIndex(const QList<HistoryData> &records)
{
    // Most changes add calls at the end or remove a few records: find the
    // records both lists share at their start and end, and index only what
    // lies between.
    const QList<HistoryData> &old = m_historyListArray;
    const qsizetype shorter = std::min(old.size(), records.size());
    qsizetype head = 0;
    while (head < shorter && sameRecord(old.at(head), records.at(head)))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && sameRecord(old.at(old.size() - 1 - tail), records.at(records.size() - 1 - tail)))
        ++tail;
    const qsizetype added = records.size() - head - tail;
    if (added > 0 && tail > 0) {
        // Records in the middle of the list are new: start over on the next search.
        m_indexValid = false;
        m_index.clear();
        return;
    }
    m_index.remove(head, old.size() - tail - 1);
    if (added > 0)
        m_index.append(records, head); // the new records are the list's end
    if (m_index.wantsRebuild()) {
        m_indexValid = false;
        m_index.clear();
    }
}

void HistoryViewModel::setSearchText(const QString &text)
{
    if (m_searchText == text && m_searchText.isNull() == text.isNull())
        return;
    m_searchText = text;
    emit searchTextChanged();
    applySearch();
}

void HistoryViewModel::applySearch()
{
    if (m_searchText.isEmpty()) {
        m_steps.clear();
        m_filteredContacts.show(m_historyListArray, std::nullopt);
        return;
    }
    if (!m_indexValid) {
        m_index.rebuild(m_historyListArray);
        m_indexValid = true;
        m_steps.clear();
    }
    const QString folded = HistorySearchIndex::fold(m_searchText);
    while (!m_steps.isEmpty() && !folded.contains(m_steps.constLast().foldedText))
        m_steps.removeLast();
    QList<int> rows;
    if (!m_steps.isEmpty() && m_steps.constLast().foldedText == folded) {
        rows = m_steps.constLast().rows;
    } else {
        rows = m_steps.isEmpty() ? m_index.search(m_searchText, m_historyListArray)
                                 : m_index.search(m_searchText, m_historyListArray, m_steps.constLast().rows);
        if (m_steps.size() == maximumSteps)
            m_steps.removeFirst();
        m_steps.append(Step{ folded, rows });
    }
    m_filteredContacts.show(m_historyListArray, std::move(rows));
}

void HistoryViewModel::selectRow(int row)
{
    if (row < 0 || row >= m_filteredContacts.count())
        return;
    m_selectedContact = m_filteredContacts.at(row);
    emit selectedContactChanged();
}

void HistoryViewModel::deleteRows(const QList<int> &rows)
{
    QList<int> ascending = rows;
    std::sort(ascending.begin(), ascending.end());
    ascending.erase(std::unique(ascending.begin(), ascending.end()), ascending.end());
    // The records as listed now: each deletion republishes the list.
    QList<HistoryData> doomed;
    for (int row : std::as_const(ascending)) {
        if (row >= 0 && row < m_filteredContacts.count())
            doomed.append(m_filteredContacts.at(row));
    }
    for (const HistoryData &record : std::as_const(doomed)) {
        m_historyDataService->deleteObject(record.objectId);
        m_historyDataService->saveData();
        m_historyDataService->fetchHistory();
    }
}

void HistoryViewModel::callSelectedContact(bool hidden)
{
    m_service->setPendingCallSaveToHistory(m_defaultsService->userDefaults().boolValue(QStringLiteral("saveToHistory")));
    const HistoryData record = m_selectedContact.value_or(HistoryData());
    m_service->makeCall(textOrEmpty(record.telephone), hidden);
    m_service->setPendingCall(textOrEmpty(record.firstName), textOrEmpty(record.lastName),
                              textOrEmpty(record.telephone), hidden);
}

QVariant HistoryViewModel::selectedContactValue() const
{
    return m_selectedContact ? QVariant::fromValue(*m_selectedContact) : QVariant();
}
