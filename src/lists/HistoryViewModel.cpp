#include "HistoryViewModel.h"

#include "HistoryCallDataService.h"
#include "KeyValueStore.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QMetaObject>

#include <algorithm>
#include <utility>

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

HistoryViewModel::~HistoryViewModel()
{
    // A running index build works on its own copy of the list; wait for it.
    if (m_indexBuild.valid())
        m_indexBuild.wait();
}

void HistoryViewModel::receive(const QList<HistoryData> &records)
{
    m_historyListArray = records;
    m_steps.clear();
    if (m_indexValid)
        catchUpIndex();
    else
        startIndexBuild();
    emit historyListArrayChanged();
    applySearch();
}

void HistoryViewModel::startIndexBuild()
{
    if (m_indexBuild.valid() || m_historyListArray.isEmpty())
        return;
    m_indexBuildList = m_historyListArray;
    m_indexBuild = std::async(std::launch::async, [this, records = m_indexBuildList] {
        HistorySearchIndex index;
        index.rebuild(records);
        // Dropped if this object is gone by then.
        QMetaObject::invokeMethod(this, [this] { adoptIndex(); }, Qt::QueuedConnection);
        return index;
    });
}

void HistoryViewModel::adoptIndex()
{
    if (!m_indexBuild.valid())
        return;
    m_index = m_indexBuild.get();
    m_indexedList = std::exchange(m_indexBuildList, {});
    m_indexValid = true;
    catchUpIndex();
}

void HistoryViewModel::invalidateIndex()
{
    m_indexValid = false;
    m_index.clear();
    m_indexedList.clear();
}

void HistoryViewModel::catchUpIndex()
{
    // Most changes add calls at the end or remove a few records: find the
    // records both lists share at their start and end, and index only what
    // lies between.
    const QList<HistoryData> &old = m_indexedList;
    const QList<HistoryData> &now = m_historyListArray;
    const qsizetype shorter = std::min(old.size(), now.size());
    qsizetype head = 0;
    while (head < shorter && sameRecord(old.at(head), now.at(head)))
        ++head;
    qsizetype tail = 0;
    while (tail < shorter - head && sameRecord(old.at(old.size() - 1 - tail), now.at(now.size() - 1 - tail)))
        ++tail;
    const qsizetype added = now.size() - head - tail;
    if (added > 0 && tail > 0) {
        // Records in the middle of the list are new: index it all again.
        invalidateIndex();
        startIndexBuild();
        return;
    }
    m_index.remove(head, old.size() - tail - 1);
    if (added > 0)
        m_index.append(now, head); // the new records are the list's end
    m_indexedList = now;
    if (m_index.wantsRebuild()) {
        invalidateIndex();
        startIndexBuild();
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
    if (!m_indexValid)
        adoptIndex(); // waits for a build still running
    if (!m_indexValid) {
        m_index.rebuild(m_historyListArray);
        m_indexedList = m_historyListArray;
        m_indexValid = true;
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
