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

// What a call hands on for a field the record does not have.
QString textOrEmpty(const QString &text)
{
    return text.isNull() ? QStringLiteral("") : text;
}

} // namespace

HistoryViewModel::HistoryViewModel(HistoryCallDataService &historyDataService, UserDefaultsService &defaultsService,
                                   Service &service, QObject *parent)
    : QObject(parent),
      m_historyDataService(&historyDataService),
      m_defaultsService(&defaultsService),
      m_service(&service)
{
    using Store = HistoryCallDataService;
    connect(m_historyDataService, &Store::rowsAboutToBeRemoved, this, [this](const QModelIndex &, int first, int last) {
        m_changes.append(Change{ false, first, last });
        letGoOfRecords();
    });
    connect(m_historyDataService, &Store::rowsAboutToBeInserted, this, [this](const QModelIndex &, int first, int last) {
        m_changes.append(Change{ true, first, last });
        letGoOfRecords();
    });
    connect(m_historyDataService, &Store::modelAboutToBeReset, this, [this] {
        m_replaced = true;
        letGoOfRecords();
    });
    // Every list the store publishes replaces ours; the connections end with
    // this object.
    connect(m_historyDataService, &Store::savedEntitiesChanged, this,
            [this] { receive(m_historyDataService->savedEntities()); });
    m_replaced = true;
    receive(m_historyDataService->savedEntities());
}

HistoryViewModel::~HistoryViewModel()
{
    // A running index build works on its own copy of the list; wait for it.
    if (m_indexBuild.valid())
        m_indexBuild.wait();
}

void HistoryViewModel::letGoOfRecords()
{
    m_historyListArray = QList<HistoryData>();
    m_filteredContacts.letGoOfRecords();
}

void HistoryViewModel::receive(const QList<HistoryData> &records)
{
    const bool followed = !m_replaced && applyChanges(records);
    m_historyListArray = records;
    m_listSize = records.size();
    m_changes.clear();
    m_replaced = false;
    if (!followed) {
        m_steps.clear();
        invalidateIndex();
        startIndexBuild();
    } else if (m_index.wantsRebuild()) {
        invalidateIndex();
        startIndexBuild();
    }
    emit historyListArrayChanged();
    applySearch(!followed);
}

bool HistoryViewModel::applyChanges(const QList<HistoryData> &records)
{
    // Removals in any number, then at most one block added at the end: the
    // way the store applies its own saves. Anything else is taken as a new list.
    qsizetype size = m_listSize;
    for (qsizetype i = 0; i < m_changes.size(); ++i) {
        const Change &c = m_changes.at(i);
        if (c.first < 0 || c.last < c.first)
            return false;
        if (c.insert) {
            if (c.first != size || i != m_changes.size() - 1)
                return false;
            size += c.last - c.first + 1;
        } else {
            if (c.last >= size)
                return false;
            size -= c.last - c.first + 1;
        }
    }
    if (size != records.size())
        return false;
    if (m_indexBuild.valid() && !m_changes.isEmpty())
        m_indexBuildOutdated = true;

    for (const Change &c : std::as_const(m_changes)) {
        if (!c.insert) {
            if (m_indexValid)
                m_index.remove(c.first, c.last);
            const int removed = c.last - c.first + 1;
            for (Step &step : m_steps) {
                QList<int> &rows = step.rows;
                const auto begin = std::lower_bound(rows.begin(), rows.end(), c.first);
                const auto end = std::upper_bound(begin, rows.end(), c.last);
                for (auto it = end; it != rows.end(); ++it)
                    *it -= removed;
                rows.erase(begin, end);
            }
            continue;
        }
        if (!m_indexValid) {
            // The new records cannot be searched yet.
            m_steps.clear();
            continue;
        }
        m_index.append(records, c.first);
        QList<int> added;
        for (int row = c.first; row <= c.last; ++row)
            added.append(row);
        for (Step &step : m_steps)
            step.rows.append(m_index.search(step.foldedText, records, added));
    }
    return true;
}

void HistoryViewModel::startIndexBuild()
{
    if (m_indexBuild.valid() || m_historyListArray.isEmpty())
        return;
    m_indexBuildOutdated = false;
    m_indexBuild = std::async(std::launch::async, [this, records = m_historyListArray] {
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
    HistorySearchIndex index = m_indexBuild.get();
    if (m_indexBuildOutdated) {
        startIndexBuild();
        return;
    }
    m_index = std::move(index);
    m_indexValid = true;
}

void HistoryViewModel::invalidateIndex()
{
    m_indexValid = false;
    m_index.clear();
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
    applySearch(false);
}

void HistoryViewModel::applySearch(bool newList)
{
    if (m_searchText.isEmpty()) {
        m_steps.clear();
        m_filteredContacts.show(m_historyListArray, std::nullopt, newList);
        return;
    }
    const QString folded = HistorySearchIndex::fold(m_searchText);
    const bool known = !m_steps.isEmpty() && m_steps.constLast().foldedText == folded;
    if (!known && !m_indexValid) {
        // Wait for a build still running; one the list changed under starts
        // again on the list as it is, and that one is waited for as well.
        adoptIndex();
        if (!m_indexValid)
            adoptIndex();
        if (!m_indexValid) {
            m_index.rebuild(m_historyListArray);
            m_indexValid = true;
        }
    }
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
    m_filteredContacts.show(m_historyListArray, std::move(rows), newList);
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
    const bool save = m_defaultsService->userDefaults().boolValue(QStringLiteral("saveToHistory"));
    const HistoryData record = m_selectedContact.value_or(HistoryData());
    m_service->placeCall({ textOrEmpty(record.firstName), textOrEmpty(record.lastName), textOrEmpty(record.telephone),
                           hidden, save });
}

QVariant HistoryViewModel::selectedContactValue() const
{
    return m_selectedContact ? QVariant::fromValue(*m_selectedContact) : QVariant();
}
