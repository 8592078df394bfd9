#include "ContactsViewModel.h"

#include "AddressBook.h"
#include "ContactsListModel.h"
#include "KeyValueStore.h"
#include "SearchFilter.h"
#include "Service.h"
#include "UrlOpener.h"
#include "UserDefaultsService.h"

#include <QCoreApplication>
#include <QFuture>
#include <QPointer>
#include <QTextStream>
#include <QtConcurrent/QtConcurrentRun>

#include <limits>

ContactsViewModel::ContactsViewModel(UserDefaultsService &defaultsService, Service &service, AddressBook &addressBook,
                                     UrlOpener &urlOpener, CrashManager &crashManager, QObject *parent)
    : QObject(parent),
      m_defaultsService(defaultsService),
      m_service(service),
      m_addressBook(addressBook),
      m_urlOpener(urlOpener),
      m_crashManager(crashManager),
      m_comparator(defaultsService.userDefaults().boolValue(QStringLiteral("comparator"))),
      m_sortIndexSelected(defaultsService.userDefaults().integerValue(QStringLiteral("autoSortBy"))),
      m_contactsArray(new ContactsListModel(this)),
      m_visibleContacts(new SearchFilter(m_contactsArray, { "firstName", "lastName", "telephone" }, this))
{
    connect(m_visibleContacts, &SearchFilter::searchTextChanged, this, &ContactsViewModel::searchTextChanged);
}

void ContactsViewModel::setComparator(bool ascending)
{
    const bool changed = m_comparator != ascending;
    m_comparator = ascending;
    m_defaultsService.setBool(QStringLiteral("comparator"), ascending);
    if (changed)
        emit comparatorChanged();
    sortContacts();
}

const QList<FetchedContact> &ContactsViewModel::contactsArray() const
{
    return m_contactsArray->contacts();
}

void ContactsViewModel::updateContacts()
{
    setSortIndexSelected(m_defaultsService.userDefaults().integerValue(QStringLiteral("autoSortBy")));
    if (!m_contactsPermissionRequested) {
        requestContactsAccess();
        m_contactsPermissionRequested = true;
    }
    sortContacts();
}

void ContactsViewModel::requestContactsAccess()
{
    QtConcurrent::run([book = &m_addressBook] { return book->requestAccess(); })
        .then(this, [this](const AddressBook::AccessAnswer &answer) {
            if (answer.granted) {
                fetchContacts();
                m_accessDenied = false;
            } else if (!answer.error.isEmpty()) {
                QTextStream(stdout) << "Contacts access denied: " << answer.error << Qt::endl;
                m_accessDenied = true;
            }
        });
}

void ContactsViewModel::fetchContacts()
{
    AddressBook *book = &m_addressBook;
    // Quitting waits for the reading thread: it is told to stop first.
    if (QCoreApplication *application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, [book] { book->stop(); });
    // Each batch is handed to the main thread as soon as it is read, and
    // dropped there if this model is gone by then; the end of the read
    // comes after the last batch.
    QtConcurrent::run([book, self = QPointer<ContactsViewModel>(this)] {
        return book->enumerateContacts([&self](QList<AddressBookContact> &&people) {
            QMetaObject::invokeMethod(
                QCoreApplication::instance(),
                [self, people = std::move(people)] {
                    if (self)
                        self->m_contactsArray->append(people);
                },
                Qt::QueuedConnection);
        });
    }).then(this, [this](const QString &error) {
        // A read that ended before this continuation was attached runs it
        // at once, ahead of the batches still queued: the end goes behind them.
        QMetaObject::invokeMethod(
            this,
            [this, error] {
                if (!error.isEmpty())
                    QTextStream(stdout) << "Error fetching contacts: " << error << Qt::endl;
                m_contactsArray->prepareSort(m_sortIndexSelected, m_comparator);
                emit contactsLoaded();
            },
            Qt::QueuedConnection);
    });
}

void ContactsViewModel::sortContacts()
{
    m_contactsArray->sort(m_sortIndexSelected, m_comparator);
}

void ContactsViewModel::selectVisibleContact(int row)
{
    const int source = m_visibleContacts->sourceRow(row);
    if (source < 0)
        return;
    const FetchedContact &tapped = contactsArray().at(source);
    m_selectedContact = FetchedContact::make(tapped.firstName, tapped.lastName, tapped.telephone);
    emit selectedContactChanged();
}

bool ContactsViewModel::callSelectedContact(bool hidden)
{
    const bool save = m_defaultsService.userDefaults().boolValue(QStringLiteral("saveToHistory"));
    const FetchedContact contact = m_selectedContact.value_or(FetchedContact());
    return m_service.placeCall({ contact.firstName, contact.lastName, contact.telephone, hidden, save });
}

void ContactsViewModel::openSettings()
{
    m_urlOpener.open(m_addressBook.accessSettingsUrl());
}

int ContactsViewModel::sortIndexSelectedValue() const
{
    return m_sortIndexSelected >= std::numeric_limits<int>::min() && m_sortIndexSelected <= std::numeric_limits<int>::max()
        ? int(m_sortIndexSelected)
        : -1;
}

QVariant ContactsViewModel::selectedContactValue() const
{
    return m_selectedContact ? QVariant::fromValue(*m_selectedContact) : QVariant();
}
