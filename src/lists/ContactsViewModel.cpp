#include "ContactsViewModel.h"

#include "AddressBook.h"
#include "ContactsListModel.h"
#include "CrashManager.h"
#include "KeyValueStore.h"
#include "Platform.h"
#include "Service.h"
#include "UrlOpener.h"
#include "UserDefaultsService.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTextStream>
#include <QThreadPool>

#include <algorithm>
#include <memory>
#include <numeric>
#include <vector>

namespace {

void log(const QString &line)
{
    QTextStream(stdout) << line << Qt::endl;
}

// Runs `step` on the main thread, in the order posted.
template<typename Step>
void onMainThread(Step &&step)
{
    QMetaObject::invokeMethod(QCoreApplication::instance(), std::forward<Step>(step), Qt::QueuedConnection);
}

// Code-point order. UTF-16 units order everything above U+FFFF (surrogates,
// D800-DFFF) before E000-FFFF; moving the surrogates above them fixes that.
bool codePointLess(const QString &a, const QString &b)
{
    const char16_t *pa = reinterpret_cast<const char16_t *>(a.constData());
    const char16_t *pb = reinterpret_cast<const char16_t *>(b.constData());
    const qsizetype n = std::min(a.size(), b.size());
    for (qsizetype i = 0; i < n; ++i) {
        char16_t ua = pa[i];
        char16_t ub = pb[i];
        if (ua == ub)
            continue;
        if (ua >= 0xD800 && ub >= 0xD800) {
            ua = ua >= 0xE000 ? char16_t(ua - 0x800) : char16_t(ua + 0x2000);
            ub = ub >= 0xE000 ? char16_t(ub - 0x800) : char16_t(ub + 0x2000);
        }
        return ua < ub;
    }
    return a.size() < b.size();
}

// Fields are joined for the search with a character no one types.
constexpr char16_t fieldSeparator = u'\u0001';

QString searchForm(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

ContactsViewModel::ContactsViewModel(QObject *parent)
    : QObject(parent),
      m_defaultsService(UserDefaultsService::shared()),
      m_crashManager(CrashManager::shared()),
      m_comparator(m_defaultsService->userDefaults().boolValue(QStringLiteral("comparator"))),
      m_sortIndexSelected(m_defaultsService->userDefaults().integerValue(QStringLiteral("autoSortBy"))),
      m_visibleContacts(new ContactsListModel(this, this))
{
}

ContactsViewModel::~ContactsViewModel() = default;

void ContactsViewModel::setComparator(bool ascending)
{
    const bool changed = m_comparator != ascending;
    m_comparator = ascending;
    m_defaultsService->setBool(QStringLiteral("comparator"), ascending);
    if (changed)
        emit comparatorChanged();
    sortContacts();
}

void ContactsViewModel::setSearchText(const QString &text)
{
    if (m_searchText == text)
        return;
    m_searchText = text;
    m_foldedSearch = searchForm(text);
    refilter();
    emit searchTextChanged();
}

void ContactsViewModel::setSortIndexSelected(qint64 index)
{
    if (m_sortIndexSelected == index)
        return;
    m_sortIndexSelected = index;
    emit sortIndexSelectedChanged();
}

void ContactsViewModel::setAccessDenied(bool denied)
{
    if (m_accessDenied == denied)
        return;
    m_accessDenied = denied;
    emit accessDeniedChanged();
}

QList<FetchedContact> ContactsViewModel::visibleContacts() const
{
    if (m_searchText.isEmpty())
        return m_contactsArray;
    QList<FetchedContact> visible;
    visible.reserve(m_visibleRows.size());
    for (qsizetype index : m_visibleRows)
        visible.append(m_contactsArray[index]);
    return visible;
}

qsizetype ContactsViewModel::visibleCount() const
{
    return m_searchText.isEmpty() ? m_contactsArray.size() : m_visibleRows.size();
}

const FetchedContact &ContactsViewModel::visibleContactAt(qsizetype row) const
{
    return m_contactsArray[m_searchText.isEmpty() ? row : m_visibleRows[row]];
}

void ContactsViewModel::updateContacts()
{
    setSortIndexSelected(m_defaultsService->userDefaults().integerValue(QStringLiteral("autoSortBy")));
    if (!m_contactsPermissionRequested) {
        requestContactsAccess();
        m_contactsPermissionRequested = true;
        emit contactsPermissionRequestedChanged();
    }
    sortContacts();
}

void ContactsViewModel::requestContactsAccess()
{
    AddressBook *book = &Platform::addressBook();
    QThreadPool::globalInstance()->start([book, self = QPointer<ContactsViewModel>(this)] {
        const AddressBook::AccessAnswer answer = book->requestAccess();
        onMainThread([self, answer] {
            if (!self)
                return;
            if (answer.granted) {
                self->fetchContacts();
                self->setAccessDenied(false);
            } else if (!answer.error.isEmpty()) {
                log(QStringLiteral("Contacts access denied: ") + answer.error);
                self->setAccessDenied(true);
            }
        });
    });
}

void ContactsViewModel::fetchContacts()
{
    AddressBook *book = &Platform::addressBook();
    QThreadPool::globalInstance()->start([book, self = QPointer<ContactsViewModel>(this)] {
        const QString error = book->enumerateContacts([&self](QList<AddressBookContact> &&people) {
            auto batch = std::make_shared<Batch>(prepare(std::move(people)));
            onMainThread([self, batch] {
                if (self)
                    self->append(std::move(*batch));
            });
        });
        onMainThread([self, error] {
            if (!self)
                return;
            if (!error.isEmpty())
                log(QStringLiteral("Error fetching contacts: ") + error);
            emit self->contactsLoaded();
        });
    });
}

ContactsViewModel::Keys ContactsViewModel::keysFor(const QString &firstName, const QString &lastName,
                                                   const QString &telephone)
{
    Keys keys;
    // Canonically equivalent spellings compare equal once both are composed.
    keys.firstName = firstName.normalized(QString::NormalizationForm_C);
    keys.lastName = lastName.normalized(QString::NormalizationForm_C);
    keys.telephone = telephone.normalized(QString::NormalizationForm_C);
    keys.folded = (keys.firstName + QChar(fieldSeparator) + keys.lastName + QChar(fieldSeparator) + keys.telephone)
                      .toCaseFolded();
    return keys;
}

ContactsViewModel::Batch ContactsViewModel::prepare(QList<AddressBookContact> &&people)
{
    Batch batch;
    batch.keys.reserve(people.size());
    for (const AddressBookContact &person : people)
        batch.keys.append(keysFor(person.givenName, person.familyName, person.phoneNumbers.value(0)));
    batch.people = std::move(people);
    return batch;
}

void ContactsViewModel::append(Batch &&batch)
{
    const qsizetype first = m_contactsArray.size();
    const qsizetype added = batch.people.size();
    if (added == 0)
        return;
    const bool searching = !m_searchText.isEmpty();
    if (!searching)
        m_visibleContacts->beginAppend(int(added));
    m_contactsArray.reserve(first + added);
    m_keys.reserve(first + added);
    for (qsizetype i = 0; i < added; ++i) {
        const AddressBookContact &person = batch.people[i];
        m_contactsArray.append(FetchedContact::make(person.givenName, person.familyName, person.phoneNumbers.value(0)));
        m_keys.append(std::move(batch.keys[i]));
    }
    if (!searching) {
        m_visibleContacts->endAppend();
    } else {
        QList<qsizetype> matching;
        for (qsizetype i = first; i < m_contactsArray.size(); ++i) {
            if (matches(i))
                matching.append(i);
        }
        if (!matching.isEmpty()) {
            m_visibleContacts->beginAppend(int(matching.size()));
            m_visibleRows.append(matching);
            m_visibleContacts->endAppend();
        }
    }
    emit contactsArrayChanged();
}

void ContactsViewModel::sortContacts()
{
    const qint64 field = m_sortIndexSelected;
    if (field < 0 || field > 2 || m_contactsArray.size() < 2)
        return;
    const auto key = [this, field](qsizetype i) -> const QString & {
        const Keys &keys = m_keys[i];
        return field == 0 ? keys.firstName : field == 1 ? keys.lastName : keys.telephone;
    };
    std::vector<qsizetype> order(size_t(m_contactsArray.size()));
    std::iota(order.begin(), order.end(), qsizetype(0));
    if (m_comparator)
        std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) { return codePointLess(key(a), key(b)); });
    else
        std::stable_sort(order.begin(), order.end(), [&](qsizetype a, qsizetype b) { return codePointLess(key(b), key(a)); });

    QList<FetchedContact> contacts;
    QList<Keys> keys;
    contacts.reserve(m_contactsArray.size());
    keys.reserve(m_keys.size());
    for (qsizetype i : order) {
        contacts.append(std::move(m_contactsArray[i]));
        keys.append(std::move(m_keys[i]));
    }
    m_visibleContacts->beginReset();
    m_contactsArray = std::move(contacts);
    m_keys = std::move(keys);
    if (!m_searchText.isEmpty()) {
        m_visibleRows.clear();
        for (qsizetype i = 0; i < m_contactsArray.size(); ++i) {
            if (matches(i))
                m_visibleRows.append(i);
        }
    }
    m_visibleContacts->endReset();
    emit contactsArrayChanged();
}

bool ContactsViewModel::matches(qsizetype index) const
{
    const Keys &keys = m_keys[index];
    if (!m_foldedSearch.contains(QChar(fieldSeparator)))
        return keys.folded.contains(m_foldedSearch);
    // A search that holds the separator itself: field by field.
    return searchForm(keys.firstName).contains(m_foldedSearch) || searchForm(keys.lastName).contains(m_foldedSearch)
        || searchForm(keys.telephone).contains(m_foldedSearch);
}

void ContactsViewModel::refilter()
{
    m_visibleContacts->beginReset();
    m_visibleRows.clear();
    if (!m_searchText.isEmpty()) {
        for (qsizetype i = 0; i < m_contactsArray.size(); ++i) {
            if (matches(i))
                m_visibleRows.append(i);
        }
    }
    m_visibleContacts->endReset();
}

void ContactsViewModel::selectVisibleContact(int row)
{
    if (row < 0 || row >= visibleCount())
        return;
    const FetchedContact &tapped = visibleContactAt(row);
    m_selectedContact = FetchedContact::make(tapped.firstName, tapped.lastName, tapped.telephone);
    emit selectedContactChanged();
}

bool ContactsViewModel::callSelectedContact(bool hidden)
{
    Service *service = Service::shared();
    service->setPendingCallSaveToHistory(m_defaultsService->userDefaults().boolValue(QStringLiteral("saveToHistory")));
    const FetchedContact contact = m_selectedContact.value_or(FetchedContact());
    service->makeCall(contact.telephone, hidden);
    service->setPendingCall(contact.firstName, contact.lastName, contact.telephone, hidden);
    return service->callFailed();
}

void ContactsViewModel::openSettings()
{
    Platform::urlOpener().open(Platform::addressBook().accessSettingsUrl());
}

QVariantList ContactsViewModel::contactsArrayValue() const
{
    QVariantList list;
    list.reserve(m_contactsArray.size());
    for (const FetchedContact &contact : m_contactsArray)
        list.append(QVariant::fromValue(contact));
    return list;
}

QVariant ContactsViewModel::selectedContactValue() const
{
    return m_selectedContact ? QVariant::fromValue(*m_selectedContact) : QVariant();
}
