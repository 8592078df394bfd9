#include "EdsAddressBook.h"

// GLib's headers name struct members "signals", which Qt defines as a keyword.
#undef signals
#include <libebook/libebook.h>

#include <memory>

namespace {

template<typename T>
struct GObjectDeleter
{
    void operator()(T *object) const { g_object_unref(object); }
};
template<typename T>
using GObjectPointer = std::unique_ptr<T, GObjectDeleter<T>>;

QString describe(GError *error)
{
    const QString text = error ? QString::fromUtf8(error->message) : QStringLiteral("unknown error");
    g_clear_error(&error);
    return text;
}

AddressBookContact fromEContact(EContact *contact)
{
    AddressBookContact person;
    person.givenName = QString::fromUtf8(static_cast<const char *>(e_contact_get_const(contact, E_CONTACT_GIVEN_NAME)));
    person.familyName = QString::fromUtf8(static_cast<const char *>(e_contact_get_const(contact, E_CONTACT_FAMILY_NAME)));
    // The TEL properties as the card lists them, whatever their labels.
    GList *numbers = e_contact_get_attributes(contact, E_CONTACT_TEL);
    for (GList *item = numbers; item; item = item->next) {
        char *value = e_vcard_attribute_get_value(static_cast<EVCardAttribute *>(item->data));
        person.phoneNumbers.append(QString::fromUtf8(value));
        g_free(value);
    }
    g_list_free_full(numbers, reinterpret_cast<GDestroyNotify>(e_vcard_attribute_free));
    return person;
}

} // namespace

EdsAddressBook::EdsAddressBook() : m_cancellable(g_cancellable_new()) { }

EdsAddressBook::~EdsAddressBook()
{
    g_object_unref(m_cancellable);
}

AddressBook::AccessAnswer EdsAddressBook::requestAccess()
{
    GError *error = nullptr;
    GObjectPointer<ESourceRegistry> registry(
            e_source_registry_new_sync(static_cast<GCancellable *>(m_cancellable), &error));
    if (!registry)
        return { false, describe(error) };
    return { true, QString() };
}

QString EdsAddressBook::enumerateContacts(const std::function<void(QList<AddressBookContact> &&batch)> &deliver)
{
    auto *cancellable = static_cast<GCancellable *>(m_cancellable);
    if (g_cancellable_is_cancelled(cancellable))
        return {};
    GError *error = nullptr;
    GObjectPointer<ESourceRegistry> registry(e_source_registry_new_sync(cancellable, &error));
    if (!registry)
        return describe(error);

    // Every contact: "any field contains the empty text".
    EBookQuery *query = e_book_query_any_field_contains("");
    char *everyone = e_book_query_to_string(query);
    e_book_query_unref(query);

    QString failure;
    GList *sources = e_source_registry_list_enabled(registry.get(), E_SOURCE_EXTENSION_ADDRESS_BOOK);
    for (GList *item = sources; item && !g_cancellable_is_cancelled(cancellable); item = item->next) {
        auto *source = static_cast<ESource *>(item->data);
        // What the book holds now, remote books included (their last
        // synchronised copy): not waiting for them to reach their servers.
        GObjectPointer<EClient> client(e_book_client_connect_sync(source, guint32(-1), cancellable, &error));
        GSList *contacts = nullptr;
        if (!client || !e_book_client_get_contacts_sync(E_BOOK_CLIENT(client.get()), everyone, &contacts, cancellable,
                                                        &error)) {
            // One book that cannot be read leaves the others to read.
            if (failure.isEmpty())
                failure = QStringLiteral("%1: %2").arg(QString::fromUtf8(e_source_get_display_name(source)),
                                                       describe(error));
            else
                g_clear_error(&error);
            continue;
        }
        QList<AddressBookContact> batch;
        for (GSList *contact = contacts; contact && !g_cancellable_is_cancelled(cancellable); contact = contact->next) {
            batch.append(fromEContact(E_CONTACT(contact->data)));
            if (batch.size() == batchSize)
                deliver(std::exchange(batch, {}));
        }
        if (!batch.isEmpty())
            deliver(std::move(batch));
        g_slist_free_full(contacts, g_object_unref);
    }
    g_list_free_full(sources, g_object_unref);
    g_free(everyone);
    return failure;
}

void EdsAddressBook::stop()
{
    g_cancellable_cancel(static_cast<GCancellable *>(m_cancellable));
}

// The module's entry point, looked up by EdsModuleAddressBook.
extern "C" Q_DECL_EXPORT AddressBook *quietonNewEdsAddressBook()
{
    return new EdsAddressBook();
}
