// The contacts screen in real QML views, over a real vCard folder, a
// telephony that records requests and reports calls, and the history in a
// real SQLite file.
#include "ContactsViewModel.h"
#include "CrashManager.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "RecordingUrlOpener.h"
#include "Service.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QFile>
#include <QQmlContext>
#include <QtQuickTest>


// What the QML tests need of the address book and the URL opener, besides
// the phone and the history file.
class Driver : public PhoneDriver
{
    Q_OBJECT
public:
    explicit Driver(TestApp &app) : PhoneDriver(app), m_opener(app.urlOpener) { }

    // A contacts model over the book's folder, for one screen.
    Q_INVOKABLE ContactsViewModel *newModel()
    {
        return new ContactsViewModel(app().defaults(), app().service(), m_book, *m_opener,
                                     m_crashManager, this);
    }

    // Replaces the address book with one vCard file of these people, each
    // a list [first, last, number...].
    Q_INVOKABLE void writeBook(const QVariantList &people)
    {
        const QString folder = VCardFolderAddressBook::defaultFolder();
        QFile::remove(folder);
        QDir(folder).removeRecursively();
        QDir().mkpath(folder);
        QByteArray text;
        for (const QVariant &entry : people) {
            const QStringList fields = entry.toStringList();
            text += "BEGIN:VCARD\nVERSION:3.0\nN:" + fields.value(1).toUtf8() + ";" + fields.value(0).toUtf8() + "\n";
            for (const QString &phone : fields.mid(2))
                text += "TEL:" + phone.toUtf8() + "\n";
            text += "END:VCARD\n";
        }
        QFile file(QDir(folder).filePath(QStringLiteral("book.vcf")));
        file.open(QIODevice::WriteOnly);
        file.write(text);
    }
    // A file where the address book's folder belongs: the book cannot be read.
    Q_INVOKABLE void blockBook()
    {
        const QString folder = VCardFolderAddressBook::defaultFolder();
        QDir(folder).removeRecursively();
        QFile file(folder);
        file.open(QIODevice::WriteOnly);
    }
    Q_INVOKABLE QString openedUrl() const { return m_opener->addresses().value(m_opener->opened.size() - 1); }

private:
    RecordingUrlOpener *m_opener;
    VCardFolderAddressBook m_book;
    CrashManager m_crashManager;
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override
    {
        markOnboardingDone();
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("driver"), new Driver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(contactsview, Setup)
#include "tst_contactsview.moc"
