#include "ContactsViewModel.h"

#include "AddressBook.h"
#include "ContactsListModel.h"
#include "CrashManager.h"
#include "KeyValueStore.h"
#include "Service.h"
#include "UrlOpener.h"
#include "UserDefaultsService.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTextStream>
#include <QThreadPool>

#include <algorithm>
#include <cstring>
#include <limits>
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
char16_t orderUnit(char16_t unit)
{
    if (unit >= 0xE000)
        return char16_t(unit - 0x800);
    if (unit >= 0xD800)
        return char16_t(unit + 0x2000);
    return unit;
}

// Compares from unit `from` on; the units before it are known to be equal.
bool codePointLess(const char16_t *pa, qsizetype sa, const char16_t *pb, qsizetype sb, qsizetype from = 0)
{
    const qsizetype n = std::min(sa, sb);
    qsizetype i = std::min(from, n);
    // Equal runs four units at a time.
    for (; i + 4 <= n; i += 4) {
        quint64 wa, wb;
        std::memcpy(&wa, pa + i, sizeof wa);
        std::memcpy(&wb, pb + i, sizeof wb);
        if (wa != wb)
            break;
    }
    for (; i < n; ++i) {
        if (pa[i] != pb[i])
            return orderUnit(pa[i]) < orderUnit(pb[i]);
    }
    return sa < sb;
}

// Fields are joined for the search with a character no one types.
constexpr char16_t fieldSeparator = u'\u0001';

QString searchForm(const QString &text)
{
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

} // namespace

ContactsViewModel::ContactsViewModel(UserDefaultsService &defaultsService, Service &service, AddressBook &addressBook,
                                     UrlOpener &urlOpener, CrashManager &crashManager, QObject *parent)
    : QObject(parent),
      m_defaultsService(&defaultsService),
      m_service(&service),
      m_addressBook(addressBook),
      m_urlOpener(urlOpener),
      m_crashManager(crashManager),
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
    AddressBook *book = &m_addressBook;
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
    AddressBook *book = &m_addressBook;
    // Quitting waits for the reading thread: it is told to stop first.
    if (QCoreApplication *application = QCoreApplication::instance())
        connect(application, &QCoreApplication::aboutToQuit, this, [book] { book->stop(); });
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
    // Text that is composed already comes back shared, not copied.
    return { firstName.normalized(QString::NormalizationForm_C), lastName.normalized(QString::NormalizationForm_C),
             telephone.normalized(QString::NormalizationForm_C) };
}

void ContactsViewModel::appendSearchForm(const Keys &keys, QString &buffer)
{
    buffer += keys.firstName.toCaseFolded();
    buffer += QChar(fieldSeparator);
    buffer += keys.lastName.toCaseFolded();
    buffer += QChar(fieldSeparator);
    buffer += keys.telephone.toCaseFolded();
    buffer += QChar(fieldSeparator);
}

ContactsViewModel::Batch ContactsViewModel::prepare(QList<AddressBookContact> &&people)
{
    Batch batch;
    batch.keys.reserve(people.size());
    batch.starts.reserve(people.size());
    for (const AddressBookContact &person : people) {
        batch.keys.append(keysFor(person.givenName, person.familyName, person.phoneNumbers.value(0)));
        batch.starts.append(batch.searchText.size());
        appendSearchForm(batch.keys.last(), batch.searchText);
    }
    batch.people = std::move(people);
    return batch;
}

void ContactsViewModel::append(Batch &&batch)
{
    const qsizetype first = m_contactsArray.size();
    const qsizetype added = batch.people.size();
    if (added == 0)
        return;
    m_sortedField = -1;
    const bool searching = !m_searchText.isEmpty();
    if (!searching)
        m_visibleContacts->beginAppend(int(added));
    const qsizetype base = m_searchBuffer.size();
    m_searchBuffer += batch.searchText;
    for (qsizetype i = 0; i < added; ++i) {
        const AddressBookContact &person = batch.people[i];
        m_contactsArray.append(FetchedContact::make(person.givenName, person.familyName, person.phoneNumbers.value(0)));
        m_keys.append(std::move(batch.keys[i]));
        m_searchStarts.append(base + batch.starts[i]);
    }
    if (!searching) {
        m_visibleContacts->endAppend();
    } else {
        const QString folded = searchForm(m_searchText);
        QList<qsizetype> matching;
        for (qsizetype i = first; i < m_contactsArray.size(); ++i) {
            if (matches(i, folded))
                matching.append(i);
        }
        if (!matching.isEmpty()) {
            m_visibleContacts->beginAppend(int(matching.size()));
            m_visibleRows.append(matching);
            m_visibleContacts->endAppend();
        }
        // Earlier steps know nothing of the new rows.
        m_searchSteps = { { folded, m_visibleRows } };
    }
    emit contactsArrayChanged();
}

namespace {

// The first eight UTF-16 units of `text` in code-point order, as two numbers
// that compare like the text wherever they differ.
struct OrderPrefix
{
    static constexpr qsizetype units = 8;
    quint64 high = 0;
    quint64 low = 0;

    explicit OrderPrefix(const QString &text)
    {
        for (qsizetype i = 0; i < 8; ++i) {
            const quint64 unit = i < text.size() ? orderUnit(text[i].unicode()) : 0;
            (i < 4 ? high : low) = ((i < 4 ? high : low) << 16) | unit;
        }
    }
    bool operator==(const OrderPrefix &other) const = default;
    bool operator<(const OrderPrefix &other) const
    {
        return high != other.high ? high < other.high : low < other.low;
    }
};

} // namespace

void ContactsViewModel::sortContacts()
{
    const qint64 field = m_sortIndexSelected;
    if (field < 0 || field > 2 || m_contactsArray.size() < 2)
        return;
    if (m_sortedField == field && m_sortedAscending == m_comparator)
        return;
    const auto key = [this, field](qsizetype i) -> const QString & {
        const Keys &keys = m_keys[i];
        return field == 0 ? keys.firstName : field == 1 ? keys.lastName : keys.telephone;
    };
    // Most comparisons are settled by the prefixes, in one block of memory;
    // the rest compare the text after them.
    struct Entry
    {
        OrderPrefix prefix;
        const char16_t *text;
        qsizetype size;
        qsizetype index;
    };
    std::vector<Entry> order;
    order.reserve(size_t(m_contactsArray.size()));
    for (qsizetype i = 0; i < m_contactsArray.size(); ++i) {
        const QString &text = key(i);
        order.push_back({ OrderPrefix(text), reinterpret_cast<const char16_t *>(text.constData()), text.size(), i });
    }
    const auto less = [](const Entry &a, const Entry &b) {
        if (!(a.prefix == b.prefix))
            return a.prefix < b.prefix;
        return codePointLess(a.text, a.size, b.text, b.size, OrderPrefix::units);
    };
    if (m_comparator)
        std::stable_sort(order.begin(), order.end(), less);
    else
        std::stable_sort(order.begin(), order.end(), [&less](const Entry &a, const Entry &b) { return less(b, a); });

    QList<FetchedContact> contacts;
    QList<Keys> keys;
    QString searchBuffer;
    QList<qsizetype> searchStarts;
    contacts.reserve(m_contactsArray.size());
    keys.reserve(m_keys.size());
    searchBuffer.reserve(m_searchBuffer.size());
    searchStarts.reserve(m_searchStarts.size());
    for (const Entry &entry : order) {
        contacts.append(std::move(m_contactsArray[entry.index]));
        keys.append(std::move(m_keys[entry.index]));
        searchStarts.append(searchBuffer.size());
        searchBuffer += searchSpan(entry.index);
    }
    m_visibleContacts->beginReset();
    m_contactsArray = std::move(contacts);
    m_keys = std::move(keys);
    m_searchBuffer = std::move(searchBuffer);
    m_searchStarts = std::move(searchStarts);
    m_searchSteps.clear();
    if (!m_searchText.isEmpty()) {
        const QString folded = searchForm(m_searchText);
        m_visibleRows = searchAll(folded);
        m_searchSteps.append({ folded, m_visibleRows });
    }
    m_sortedField = field;
    m_sortedAscending = m_comparator;
    m_visibleContacts->endReset();
    emit contactsArrayChanged();
}

QStringView ContactsViewModel::searchSpan(qsizetype index) const
{
    const qsizetype start = m_searchStarts[index];
    const qsizetype end = index + 1 < m_searchStarts.size() ? m_searchStarts[index + 1] : m_searchBuffer.size();
    return QStringView(m_searchBuffer).sliced(start, end - start);
}

bool ContactsViewModel::matches(qsizetype index, const QString &foldedText) const
{
    if (!foldedText.contains(QChar(fieldSeparator)))
        return searchSpan(index).contains(foldedText);
    // A search that holds the separator itself: field by field.
    const Keys &keys = m_keys[index];
    return searchForm(keys.firstName).contains(foldedText) || searchForm(keys.lastName).contains(foldedText)
        || searchForm(keys.telephone).contains(foldedText);
}

QList<qsizetype> ContactsViewModel::searchAll(const QString &foldedText) const
{
    QList<qsizetype> rows;
    if (foldedText.contains(QChar(fieldSeparator))) {
        for (qsizetype i = 0; i < m_contactsArray.size(); ++i) {
            if (matches(i, foldedText))
                rows.append(i);
        }
        return rows;
    }
    // No match can reach across a separator, so every hit lies inside one
    // contact's slice; after a hit the search goes on with the next contact.
    const QStringView buffer(m_searchBuffer);
    qsizetype from = 0;
    qsizetype contact = 0;
    for (;;) {
        const qsizetype hit = buffer.indexOf(foldedText, from);
        if (hit < 0)
            break;
        // Mostly the hit lies in the contact the search started at.
        const qsizetype count = m_searchStarts.size();
        if (contact + 1 < count && m_searchStarts[contact + 1] <= hit) {
            contact = std::upper_bound(m_searchStarts.cbegin() + contact + 1, m_searchStarts.cend(), hit)
                    - m_searchStarts.cbegin() - 1;
        }
        rows.append(contact);
        if (++contact >= m_searchStarts.size())
            break;
        from = m_searchStarts[contact];
    }
    return rows;
}

void ContactsViewModel::refilter()
{
    if (m_searchText.isEmpty()) {
        m_visibleRows.clear();
        m_searchSteps.clear();
    } else {
        const QString folded = searchForm(m_searchText);
        while (!m_searchSteps.isEmpty() && !folded.startsWith(m_searchSteps.last().foldedText))
            m_searchSteps.removeLast();
        if (!m_searchSteps.isEmpty() && m_searchSteps.last().foldedText == folded) {
            m_visibleRows = m_searchSteps.last().rows;
        } else if (!m_searchSteps.isEmpty()) {
            // Typed on: only the rows the shorter text left can still match.
            QList<qsizetype> rows;
            for (qsizetype index : std::as_const(m_searchSteps.last().rows)) {
                if (matches(index, folded))
                    rows.append(index);
            }
            m_visibleRows = rows;
            m_searchSteps.append({ folded, std::move(rows) });
        } else {
            m_visibleRows = searchAll(folded);
            m_searchSteps.append({ folded, m_visibleRows });
        }
    }
    m_visibleContacts->rowsReplaced();
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
    const bool save = m_defaultsService->userDefaults().boolValue(QStringLiteral("saveToHistory"));
    const FetchedContact contact = m_selectedContact.value_or(FetchedContact());
    return m_service->placeCall({ contact.firstName, contact.lastName, contact.telephone, hidden, save });
}

void ContactsViewModel::openSettings()
{
    m_urlOpener.open(m_addressBook.accessSettingsUrl());
}

QVariantList ContactsViewModel::contactsArrayValue() const
{
    QVariantList list;
    list.reserve(m_contactsArray.size());
    for (const FetchedContact &contact : m_contactsArray)
        list.append(QVariant::fromValue(contact));
    return list;
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
