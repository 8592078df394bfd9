// Evolution Data Server's real registry and factory on a private bus and home, read through the app.
#include "CombinedAddressBook.h"
#include "EdsModuleAddressBook.h"
#include "PrivateBus.h"
#include "VCardFolderAddressBook.h"

#include <QtTest>

#undef signals
#include <libebook/libebook.h>

namespace {

QString fail(GError *error)
{
    const QString text = error ? QString::fromUtf8(error->message) : QString();
    g_clear_error(&error);
    return text;
}

// "given|family|number,number", sorted.
QStringList readAll(AddressBook &book, QString &error)
{
    QStringList contacts;
    error = book.enumerateContacts([&contacts](QList<AddressBookContact> &&batch) {
        for (const AddressBookContact &c : batch)
            contacts.append(c.givenName + u'|' + c.familyName + u'|' + c.phoneNumbers.join(u','));
    });
    contacts.sort();
    return contacts;
}

} // namespace

class TestEdsAddressBook : public QObject
{
    Q_OBJECT

    QTemporaryDir m_home;
    std::unique_ptr<PrivateBus> m_bus;
    ESourceRegistry *m_registry = nullptr;

    QString addBook(ESource *source, const QStringList &cards)
    {
        GError *error = nullptr;
        EClient *client = e_book_client_connect_sync(source, guint32(-1), nullptr, &error);
        if (!client)
            return fail(error);
        GSList *contacts = nullptr;
        for (const QString &card : cards)
            contacts = g_slist_append(contacts, e_contact_new_from_vcard(card.toUtf8().constData()));
        const bool added = e_book_client_add_contacts_sync(E_BOOK_CLIENT(client), contacts, E_BOOK_OPERATION_FLAG_NONE,
                                                           nullptr, nullptr, &error);
        g_slist_free_full(contacts, g_object_unref);
        g_object_unref(client);
        return added ? QString() : fail(error);
    }

private slots:
    void initTestCase()
    {
        for (const char *name : { "HOME", "XDG_CONFIG_HOME", "XDG_DATA_HOME", "XDG_CACHE_HOME", "XDG_RUNTIME_DIR" }) {
            const QString folder = m_home.filePath(QString::fromLatin1(name));
            QVERIFY(QDir().mkpath(folder));
            qputenv(name, folder.toUtf8());
        }
        QFile::setPermissions(m_home.filePath(QStringLiteral("XDG_RUNTIME_DIR")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("GSETTINGS_BACKEND", "memory");
        m_bus = std::make_unique<PrivateBus>();
        QVERIFY(m_bus->isRunning());
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_bus->address().toUtf8());
        QVERIFY(m_bus->startService(QStringLiteral("/usr/libexec/evolution-source-registry"), {},
                                    QString::fromLatin1(EdsModuleAddressBook::registryService)));
        QVERIFY(m_bus->startService(QStringLiteral("/usr/libexec/evolution-addressbook-factory"), {},
                                    QStringLiteral("org.gnome.evolution.dataserver.AddressBook10")));

        GError *error = nullptr;
        m_registry = e_source_registry_new_sync(nullptr, &error);
        QVERIFY2(m_registry, qPrintable(fail(error)));
        ESource *personal = e_source_registry_ref_builtin_address_book(m_registry);
        const QString added = addBook(personal, {
            QStringLiteral("BEGIN:VCARD\nVERSION:3.0\nN:Martin;Émilie;;;\nFN:Émilie Martin\n"
                           "TEL;TYPE=HOME:+33 6 12 34 56 78\nTEL;TYPE=CELL:06 11 11 11 11\nEND:VCARD"),
            QStringLiteral("BEGIN:VCARD\nVERSION:3.0\nN:;Bob;;;\nFN:Bob\nEND:VCARD"),
            QStringLiteral("BEGIN:VCARD\nVERSION:3.0\nN:Zhang;Wei;;;\nFN:Wei Zhang\nTEL:(555) 123-4567\nEND:VCARD"),
        });
        g_object_unref(personal);
        QVERIFY2(added.isEmpty(), qPrintable(added));

        // A book the user switched off.
        ESource *draft = e_source_new(nullptr, nullptr, &error);
        QVERIFY2(draft, qPrintable(fail(error)));
        e_source_set_display_name(draft, "Switched off");
        e_source_set_parent(draft, "local-stub");
        e_source_set_enabled(draft, FALSE);
        e_source_backend_set_backend_name(
                E_SOURCE_BACKEND(e_source_get_extension(draft, E_SOURCE_EXTENSION_ADDRESS_BOOK)), "local");
        QVERIFY2(e_source_registry_commit_source_sync(m_registry, draft, nullptr, &error), qPrintable(fail(error)));
        ESource *off = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT((off = e_source_registry_ref_source(m_registry, e_source_get_uid(draft))), 30000);
        g_object_unref(draft);
        const QString addedOff = addBook(off, { QStringLiteral("BEGIN:VCARD\nVERSION:3.0\nN:Hidden;Hal;;;\nTEL:1\nEND:VCARD") });
        g_object_unref(off);
        QVERIFY2(addedOff.isEmpty(), qPrintable(addedOff));
    }

    void cleanupTestCase()
    {
        g_clear_object(&m_registry);
        m_bus.reset();
    }

    // Every enabled book through the module, numbers in the card's order, then the vCard folder; no service is no refusal.
    void theAppsBookCombinesBoth()
    {
        QTemporaryDir folder;
        QFile card(folder.filePath(QStringLiteral("one.vcf")));
        QVERIFY(card.open(QIODevice::WriteOnly));
        card.write("BEGIN:VCARD\nVERSION:3.0\nN:Folder;Fay;;;\nTEL:0600\nEND:VCARD\n");
        card.close();
        const auto combined = [&](QDBusConnection bus) {
            std::vector<std::unique_ptr<AddressBook>> books;
            books.push_back(std::make_unique<EdsModuleAddressBook>(bus, QStringList{ QStringLiteral(QUIETON_EDS_MODULE) }));
            books.push_back(std::make_unique<VCardFolderAddressBook>(folder.path()));
            return CombinedAddressBook(std::move(books));
        };
        CombinedAddressBook both = combined(m_bus->connection());
        QVERIFY(both.requestAccess().granted);
        QString error;
        QCOMPARE(readAll(both, error), (QStringList{ "Bob||", "Fay|Folder|0600", "Wei|Zhang|(555) 123-4567",
                                                     "Émilie|Martin|+33 6 12 34 56 78,06 11 11 11 11" }));
        QVERIFY2(error.isEmpty(), qPrintable(error));
        // A stopped book reads nothing more.
        both.stop();
        QVERIFY(readAll(both, error).isEmpty());

        PrivateBus bare; // without the service
        CombinedAddressBook folderOnly = combined(bare.connection());
        QVERIFY(folderOnly.requestAccess().granted);
        QCOMPARE(readAll(folderOnly, error), QStringList{ QStringLiteral("Fay|Folder|0600") });
    }
};

QTEST_GUILESS_MAIN(TestEdsAddressBook)
#include "tst_edsaddressbook.moc"
