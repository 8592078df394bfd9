#pragma once

#include "FilteredHistoryModel.h"
#include "HistoryData.h"
#include "HistorySearchIndex.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <future>
#include <optional>

class HistoryCallDataService;
class Service;
class UserDefaultsService;

// The history tab's model: the records the history store publishes, the
// search-filtered rows the screen lists, and the record whose row was tapped.
// It never writes records itself except to delete the ones the user removes.
class HistoryViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The history model is made by the app")
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    Q_PROPERTY(FilteredHistoryModel *filteredContacts READ filteredContacts CONSTANT)
    Q_PROPERTY(int historyCount READ historyCount NOTIFY historyListArrayChanged)
    Q_PROPERTY(QVariant selectedContact READ selectedContactValue NOTIFY selectedContactChanged)

public:
    HistoryViewModel(HistoryCallDataService *historyDataService, UserDefaultsService *defaultsService,
                     Service *service, QObject *parent = nullptr);
    ~HistoryViewModel() override;

    QString searchText() const { return m_searchText; }
    // Filters again at once, on every change.
    void setSearchText(const QString &text);

    const QList<HistoryData> &historyListArray() const { return m_historyListArray; }
    int historyCount() const { return int(m_historyListArray.size()); }
    FilteredHistoryModel *filteredContacts() { return &m_filteredContacts; }
    const std::optional<HistoryData> &selectedContact() const { return m_selectedContact; }

    // Recomputes filteredContacts from historyListArray and searchText.
    Q_INVOKABLE void applySearch();
    // The record listed at `row` becomes the selected one.
    Q_INVOKABLE void selectRow(int row);
    // Deletes the records listed at `rows`, one after the other in ascending
    // order, each taken from the list as it was when the call began; the
    // store saves and fetches again after each.
    Q_INVOKABLE void deleteRows(const QList<int> &rows);
    // Calls the selected record's number, privately or not, and tells the
    // call observer whose call it is and whether to record it.
    Q_INVOKABLE void callSelectedContact(bool hidden);

signals:
    void searchTextChanged();
    void historyListArrayChanged();
    void selectedContactChanged();

private:
    void receive(const QList<HistoryData> &records);
    bool applyChanges(const QList<HistoryData> &records);
    // With `newList`, the list shown is announced as replaced.
    void applySearch(bool newList);
    void letGoOfRecords();
    void startIndexBuild();
    void adoptIndex();
    void invalidateIndex();
    QVariant selectedContactValue() const;

    HistoryCallDataService *m_historyDataService;
    UserDefaultsService *m_defaultsService;
    Service *m_service;
    QString m_searchText;
    QList<HistoryData> m_historyListArray;
    FilteredHistoryModel m_filteredContacts;
    std::optional<HistoryData> m_selectedContact;

    // What the store announced since it last published: rows removed, rows
    // added at the end, or a list replaced as a whole. The model lets go of
    // the store's list while the store changes it, so the change happens in
    // place instead of copying every record, and then follows it here.
    struct Change
    {
        bool insert = false;
        int first = 0;
        int last = 0;
    };
    QList<Change> m_changes;
    bool m_replaced = false;
    qsizetype m_listSize = 0;

    // The records' searchable text. A whole list is indexed on a worker
    // thread as soon as it arrives, so the first search need not wait for
    // it; after that the index follows the list's changes here. A build
    // that the list changed under is thrown away.
    HistorySearchIndex m_index;
    bool m_indexValid = false;
    std::future<HistorySearchIndex> m_indexBuild;
    bool m_indexBuildOutdated = false;
    // The rows each step of the current typing found: a longer text only
    // looks among the rows a shorter one kept, and going back a character
    // reuses what was found before.
    struct Step
    {
        QString foldedText;
        QList<int> rows;
    };
    QList<Step> m_steps;
};
