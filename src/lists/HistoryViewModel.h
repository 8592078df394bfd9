#pragma once

#include "Service.h"
#include "HistoryData.h"
#include "SearchFilter.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class HistoryCallDataService;
class Service;
class UserDefaultsService;

// The history tab's model: the store's records as the screen lists them,
// filtered by the search text in the store's order, and the record whose row
// was tapped. It writes nothing itself but the deletions the user asks for.
class HistoryViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the app with its services")
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(SearchFilter *filteredContacts READ filteredContacts CONSTANT)
    Q_PROPERTY(int historyCount READ historyCount NOTIFY historyCountChanged)
    // A HistoryData, or undefined before the first tap.
    Q_PROPERTY(QVariant selectedContact READ selectedContactValue NOTIFY selectedContactChanged)
    Q_PROPERTY(Service *service READ service CONSTANT)

public:
    HistoryViewModel(HistoryCallDataService &historyDataService, UserDefaultsService &defaultsService, Service &service,
                     QObject *parent = nullptr);

    Service *service() const { return &m_service; }
    QString searchText() const { return m_filteredContacts->searchText(); }
    void setSearchText(const QString &text) { m_filteredContacts->setSearchText(text); }
    SearchFilter *filteredContacts() const { return m_filteredContacts; }
    int historyCount() const;
    const std::optional<HistoryData> &selectedContact() const { return m_selectedContact; }

    Q_INVOKABLE void applySearch();
    Q_INVOKABLE void selectRow(int row);
    // Deletes the records listed at `rows`, in ascending order, each taken
    // from the list as it was when the call began; the store saves and
    // fetches again after each.
    Q_INVOKABLE void deleteRows(const QList<int> &rows);
    // Calls the selected record's number, privately or not, and tells the
    // call observer whose call it is and whether to record it.
    Q_INVOKABLE void callSelectedContact(bool hidden);

signals:
    void searchTextChanged();
    void historyCountChanged();
    void selectedContactChanged();

private:
    const HistoryData *listed(int row) const;
    QVariant selectedContactValue() const;

    HistoryCallDataService &m_historyDataService;
    UserDefaultsService &m_defaultsService;
    Service &m_service;
    SearchFilter *m_filteredContacts;
    std::optional<HistoryData> m_selectedContact;
};
