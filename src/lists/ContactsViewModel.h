#pragma once

#include "Service.h"
#include "FetchedContact.h"
#include "SearchFilter.h"

#include <QList>
#include <QObject>
#include <QProperty>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class AddressBook;
class ContactsListModel;
class CrashManager;
class Service;
class UrlOpener;
class UserDefaultsService;

// The address book as the contacts tab shows it. Access is asked for once
// per model, on the first updateContacts(); the book is then read off the
// main thread and its people arrive here in the book's order, a batch at a
// time. The list is sorted by (sortIndexSelected, comparator) at the next
// sortContacts(), and searched by first name, last name or number.
class ContactsViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the app with its services")
    Q_PROPERTY(bool accessDenied READ accessDenied NOTIFY accessDeniedChanged)
    Q_PROPERTY(bool comparator READ comparator WRITE setComparator NOTIFY comparatorChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    // The stored key is 64-bit; QML sees one that does not fit an int as -1
    // (like any key other than 0 to 2, it leaves the list unsorted).
    Q_PROPERTY(int sortIndexSelected READ sortIndexSelectedValue WRITE setSortIndexSelected NOTIFY sortIndexSelectedChanged)
    Q_PROPERTY(QList<int> createRowForAdArray READ createRowForAdArray CONSTANT)
    // A FetchedContact, or undefined before the first tap.
    Q_PROPERTY(QVariant selectedContact READ selectedContactValue NOTIFY selectedContactChanged)
    Q_PROPERTY(SearchFilter *visibleContacts READ visibleContacts CONSTANT)
    Q_PROPERTY(Service *service READ service CONSTANT)

public:
    ContactsViewModel(UserDefaultsService &defaultsService, Service &service, AddressBook &addressBook,
                      UrlOpener &urlOpener, CrashManager &crashManager, QObject *parent = nullptr);

    Service *service() const { return &m_service; }
    bool accessDenied() const { return m_accessDenied; }
    bool comparator() const { return m_comparator; }
    // Stores the direction under "comparator", then sorts.
    void setComparator(bool ascending);
    QString searchText() const { return m_visibleContacts->searchText(); }
    void setSearchText(const QString &text) { m_visibleContacts->setSearchText(text); }
    qint64 sortIndexSelected() const { return m_sortIndexSelected; }
    void setSortIndexSelected(qint64 index) { m_sortIndexSelected = index; }
    const QList<FetchedContact> &contactsArray() const;
    QList<int> createRowForAdArray() const { return { 10, 20, 35, 55, 70, 90, 110, 130 }; }
    std::optional<FetchedContact> selectedContact() const { return m_selectedContact; }
    SearchFilter *visibleContacts() const { return m_visibleContacts; }

    // Each time the screen is shown: takes the sort key from the settings,
    // asks for access the first time, sorts.
    Q_INVOKABLE void updateContacts();
    // Both return at once; the answer and the contacts arrive later.
    Q_INVOKABLE void requestContactsAccess();
    Q_INVOKABLE void fetchContacts();
    Q_INVOKABLE void sortContacts();

    Q_INVOKABLE void selectVisibleContact(int row);
    // Calls the selected contact (nobody: an empty number), privately when
    // `hidden`, and fills the pending-call record with the contact. Returns
    // whether the dialling-error alert is due.
    Q_INVOKABLE bool callSelectedContact(bool hidden);
    Q_INVOKABLE void openSettings();

signals:
    void accessDeniedChanged();
    void comparatorChanged();
    void searchTextChanged();
    void sortIndexSelectedChanged();
    void selectedContactChanged();
    // The address book has been read to the end (or as far as it could be).
    void contactsLoaded();

private:
    int sortIndexSelectedValue() const;
    QVariant selectedContactValue() const;

    UserDefaultsService &m_defaultsService;
    Service &m_service;
    AddressBook &m_addressBook;
    UrlOpener &m_urlOpener;
    CrashManager &m_crashManager;
    bool m_contactsPermissionRequested = false;
    bool m_comparator;
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(ContactsViewModel, bool, m_accessDenied, false,
                                         &ContactsViewModel::accessDeniedChanged)
    Q_OBJECT_BINDABLE_PROPERTY(ContactsViewModel, qint64, m_sortIndexSelected, &ContactsViewModel::sortIndexSelectedChanged)
    std::optional<FetchedContact> m_selectedContact;
    ContactsListModel *m_contactsArray;
    SearchFilter *m_visibleContacts;
};
