// The contacts and history screens over a real vCard folder, the history in
// a real SQLite file and a telephony that records requests and reports calls.
#include "HistoryCallDataService.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingUrlOpener.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QFile>
#include <QQmlContext>
#include <QQuickItem>
#include <QtQuickTest>

class Driver : public PhoneDriver
{
    Q_OBJECT
public:
    explicit Driver(TestApp &app) : PhoneDriver(app), m_opener(app.urlOpener) { }

    // Replaces the address book with one vCard file of these people, each
    // a list [first, last, number...]; with no list, a file where the
    // book's folder belongs makes the book unreadable.
    Q_INVOKABLE void writeBook(const QVariantList &people, bool readable = true)
    {
        const QString folder = VCardFolderAddressBook::defaultFolder();
        QFile::remove(folder);
        QDir(folder).removeRecursively();
        if (!readable) {
            QFile(folder).open(QIODevice::WriteOnly);
            return;
        }
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
    Q_INVOKABLE QString openedUrl() const { return m_opener->addresses().value(m_opener->opened.size() - 1); }

    // A history record as the app stores it; names left out are stored absent.
    Q_INVOKABLE void addRecord(const QString &telephone, bool hidden, const QVariant &firstName = QVariant(),
                               const QVariant &lastName = QVariant())
    {
        const auto text = [](const QVariant &value) {
            if (value.isNull())
                return QString();
            return value.toString().isNull() ? QStringLiteral("") : value.toString();
        };
        app().history().addHistory(text(firstName), text(lastName), telephone, hidden);
    }
    Q_INVOKABLE void clearHistory() { app().history().deleteAllHistory(); }


private:
    RecordingUrlOpener *m_opener;
};

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("driver"), new Driver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(listsview, Setup)
#include "tst_listsview.moc"
