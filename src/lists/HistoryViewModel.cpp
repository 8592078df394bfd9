#include "HistoryViewModel.h"

#include "HistoryCallDataService.h"
#include "KeyValueStore.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <algorithm>

HistoryViewModel::HistoryViewModel(HistoryCallDataService &historyDataService, UserDefaultsService &defaultsService,
                                   Service &service, QObject *parent)
    : QObject(parent),
      m_historyDataService(historyDataService),
      m_defaultsService(defaultsService),
      m_service(service),
      m_filteredContacts(new SearchFilter(&historyDataService, { "firstName", "lastName", "telephone" }, this))
{
    connect(m_filteredContacts, &SearchFilter::searchTextChanged, this, &HistoryViewModel::searchTextChanged);
    connect(&historyDataService, &HistoryCallDataService::savedEntitiesChanged, this,
            &HistoryViewModel::historyCountChanged);
    // The screen shows the rows once read, even if it comes before the app's first frame.
    historyDataService.readInBackground();
}

int HistoryViewModel::historyCount() const
{
    return m_historyDataService.count();
}

void HistoryViewModel::applySearch()
{
    m_filteredContacts->refilter();
}

const HistoryData *HistoryViewModel::listed(int row) const
{
    const int source = m_filteredContacts->sourceRow(row);
    return source >= 0 ? &m_historyDataService.savedEntities().at(source) : nullptr;
}

void HistoryViewModel::selectRow(int row)
{
    if (const HistoryData *record = listed(row)) {
        m_selectedContact = *record;
        emit selectedContactChanged();
    }
}

void HistoryViewModel::deleteRows(const QList<int> &rows)
{
    QList<int> ascending = rows;
    std::sort(ascending.begin(), ascending.end());
    ascending.erase(std::unique(ascending.begin(), ascending.end()), ascending.end());
    // The records as listed now: each deletion changes the list.
    QList<qint64> doomed;
    for (int row : std::as_const(ascending)) {
        if (const HistoryData *record = listed(row))
            doomed.append(record->objectId);
    }
    for (qint64 objectId : std::as_const(doomed)) {
        m_historyDataService.deleteObject(objectId);
        m_historyDataService.saveData();
        m_historyDataService.fetchHistory();
    }
}

void HistoryViewModel::callSelectedContact(bool hidden)
{
    const bool save = m_defaultsService.userDefaults().boolValue(QStringLiteral("saveToHistory"));
    const HistoryData record = m_selectedContact.value_or(HistoryData());
    m_service.placeCall({ record.firstName, record.lastName, record.telephone, hidden, save });
}

QVariant HistoryViewModel::selectedContactValue() const
{
    return m_selectedContact ? QVariant::fromValue(*m_selectedContact) : QVariant();
}
