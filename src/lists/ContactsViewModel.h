#pragma once

#include "FetchedContact.h"
#include "Service.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

#include <optional>

class AddressBook;
class ContactsListModel;
class CrashManager;
class UrlOpener;
class UserDefaultsService;
struct AddressBookContact;

// The address book as the contacts tab shows it. Access is asked for once
// per model, on the first updateContacts(); the book is then read off the
// main thread and its people arrive here in the book's order, a batch at a
// time. The list is kept sorted by (sortIndexSelected, comparator) from the
// next sortContacts() on, and searched by first name, last name or number.
class ContactsViewModel : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made for its screen by the app's start-up")
    Q_PROPERTY(Service *service READ service CONSTANT)
    Q_PROPERTY(bool accessDenied READ accessDenied NOTIFY accessDeniedChanged)
    Q_PROPERTY(bool contactsPermissionRequested READ contactsPermissionRequested NOTIFY contactsPermissionRequestedChanged)
    Q_PROPERTY(bool comparator READ comparator WRITE setComparator NOTIFY comparatorChanged)
    Q_PROPERTY(QString searchText READ searchText WRITE setSearchText NOTIFY searchTextChanged)
    // The stored key is 64-bit; QML sees one that does not fit an int as -1
    // (like any key other than 0 to 2, it leaves the list unsorted).
    Q_PROPERTY(int sortIndexSelected READ sortIndexSelectedValue WRITE setSortIndexSelected NOTIFY sortIndexSelectedChanged)
    // Built when asked for: a list of FetchedContact values.
    Q_PROPERTY(QVariantList contactsArray READ contactsArrayValue NOTIFY contactsArrayChanged)
    Q_PROPERTY(QList<int> createRowForAdArray READ createRowForAdArray CONSTANT)
    // A FetchedContact, or undefined before the first tap.
    Q_PROPERTY(QVariant selectedContact READ selectedContactValue NOTIFY selectedContactChanged)
    Q_PROPERTY(ContactsListModel *visibleContacts READ visibleContactsModel CONSTANT)

public:
    ContactsViewModel(UserDefaultsService &defaultsService, Service &service, AddressBook &addressBook,
                      UrlOpener &urlOpener, CrashManager &crashManager, QObject *parent = nullptr);

    Service *service() const { return m_service; }
    ~ContactsViewModel() override;

    bool accessDenied() const { return m_accessDenied; }
    bool contactsPermissionRequested() const { return m_contactsPermissionRequested; }
    bool comparator() const { return m_comparator; }
    // Stores the direction under "comparator", then sorts.
    void setComparator(bool ascending);
    QString searchText() const { return m_searchText; }
    void setSearchText(const QString &text);
    qint64 sortIndexSelected() const { return m_sortIndexSelected; }
    void setSortIndexSelected(qint64 index);
    const QList<FetchedContact> &contactsArray() const { return m_contactsArray; }
    QList<int> createRowForAdArray() const { return { 10, 20, 35, 55, 70, 90, 110, 130 }; }
    std::optional<FetchedContact> selectedContact() const { return m_selectedContact; }

    // The contacts the search leaves, in list order.
    QList<FetchedContact> visibleContacts() const;
    qsizetype visibleCount() const;
    const FetchedContact &visibleContactAt(qsizetype row) const;
    ContactsListModel *visibleContactsModel() const { return m_visibleContacts; }

    // Each time the screen is shown: takes the sort key from the settings,
    // asks for access the first time, sorts.
    Q_INVOKABLE void updateContacts();
    // Both return at once; the answer and the contacts arrive later.
    Q_INVOKABLE void requestContactsAccess();
    Q_INVOKABLE void fetchContacts();
    Q_INVOKABLE void sortContacts();

    // A tap on a visible row: a copy of it, with a new id, becomes the selection.
    Q_INVOKABLE void selectVisibleContact(int row);
    // Calls the selected contact (nobody: an empty number), privately when
    // `hidden`, and fills the pending-call record with the contact. Returns
    // whether the dialling-error alert is due.
    Q_INVOKABLE bool callSelectedContact(bool hidden);
    // Where access to the address book is given.
    Q_INVOKABLE void openSettings();

signals:
    void accessDeniedChanged();
    void contactsPermissionRequestedChanged();
    void comparatorChanged();
    void searchTextChanged();
    void sortIndexSelectedChanged();
    void contactsArrayChanged();
    void selectedContactChanged();
    // The address book has been read to the end (or as far as it could be).
    void contactsLoaded();

private:
    // The three fields in composed form (canonically equivalent spellings
    // compare equal), made off the main thread while the book is read.
    struct Keys
    {
        QString firstName;
        QString lastName;
        QString telephone;
    };
    struct Batch
    {
        QList<AddressBookContact> people;
        QList<Keys> keys;
        QString searchText;        // the batch's slice of the search buffer
        QList<qsizetype> starts;   // where each person's slice starts in it
    };
    // One search result, kept while the search text grows, so that a
    // longer text only looks through the rows the shorter one left and a
    // deleted letter brings the earlier rows straight back.
    struct SearchStep
    {
        QString foldedText;
        QList<qsizetype> rows;
    };
    static Keys keysFor(const QString &firstName, const QString &lastName, const QString &telephone);
    static void appendSearchForm(const Keys &keys, QString &buffer);
    static Batch prepare(QList<AddressBookContact> &&people);

    void setAccessDenied(bool denied);
    void append(Batch &&batch);
    QStringView searchSpan(qsizetype index) const;
    bool matches(qsizetype index, const QString &foldedText) const;
    QList<qsizetype> searchAll(const QString &foldedText) const;
    void refilter();

    UserDefaultsService *m_defaultsService;
    Service *m_service;
    AddressBook &m_addressBook;
    UrlOpener &m_urlOpener;
    CrashManager &m_crashManager;
    bool m_accessDenied = false;
    bool m_contactsPermissionRequested = false;
    bool m_comparator;
    QString m_searchText;
    qint64 m_sortIndexSelected;
    QList<FetchedContact> m_contactsArray;
    std::optional<FetchedContact> m_selectedContact;

    // The order the list is in: the key and direction of the last sort,
    // or -1 while it is in another order (people added since). A sort is
    // stable, so sorting again by the same key and direction changes
    // nothing: showing the tab again then leaves the list as it is.
    qint64 m_sortedField = -1;
    bool m_sortedAscending = false;

    QList<Keys> m_keys; // beside m_contactsArray, index for index
    // Every contact's three fields, case-folded, one after the other in list
    // order, so that a search is one sweep through one block of memory.
    QString m_searchBuffer;
    QList<qsizetype> m_searchStarts; // where each contact's slice starts
    QList<SearchStep> m_searchSteps;
    QList<qsizetype> m_visibleRows; // indexes into m_contactsArray while searching
    ContactsListModel *m_visibleContacts;

    QVariantList contactsArrayValue() const;
    int sortIndexSelectedValue() const;
    QVariant selectedContactValue() const;
};
