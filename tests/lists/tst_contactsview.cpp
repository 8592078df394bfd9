// The contacts screen in real QML views, over a real vCard folder, a
// telephony that records requests and reports calls, and the history in a
// real SQLite file.
#include "HistoryCallDataService.h"
#include "Platform.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "TestHome.h"
#include "UserDefaultsService.h"
#include "VCardFolderAddressBook.h"

#include <QDir>
#include <QFile>
#include <QQmlContext>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// What the QML tests need of the address book, the phone and the history file.
class Driver : public QObject
{
    Q_OBJECT
public:
    Driver(RecordingTelephony *telephony, RecordingUrlOpener *opener) : m_telephony(telephony), m_opener(opener) { }

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
    Q_INVOKABLE QString openedUrl() const
    {
        return m_opener->opened.isEmpty() ? QString() : m_opener->opened.last().toString();
    }

    Q_INVOKABLE void setCallsPossible(bool possible) { m_telephony->callsPossible = possible; }
    Q_INVOKABLE QString lastAsked() const { return m_telephony->asked.value(m_telephony->asked.size() - 1); }
    Q_INVOKABLE QString lastOpened() const { return m_telephony->opened.value(m_telephony->opened.size() - 1); }
    Q_INVOKABLE void report(const QString &id, bool outgoing, bool connected, bool ended)
    {
        m_telephony->report(id, outgoing, connected, ended);
    }
    // The records in the app's history file, read afresh from disk.
    Q_INVOKABLE QVariantList storedRows() const
    {
        QVariantList rows;
        HistoryCallDataService file(HistoryCallDataService::shared()->databasePath());
        for (const HistoryData &r : file.savedEntities()) {
            rows.append(QVariantMap{ { QStringLiteral("firstName"), r.firstName },
                                     { QStringLiteral("lastName"), r.lastName },
                                     { QStringLiteral("telephone"), r.telephone },
                                     { QStringLiteral("callHidden"), r.callHidden } });
        }
        return rows;
    }

private:
    RecordingTelephony *m_telephony;
    RecordingUrlOpener *m_opener;
};

class Setup : public QObject
{
    Q_OBJECT
    RecordingTelephony *m_telephony = nullptr;
    RecordingUrlOpener *m_opener = nullptr;

public slots:
    void applicationAvailable()
    {
        TestHome::use();
        auto telephony = std::make_unique<RecordingTelephony>();
        m_telephony = telephony.get();
        Platform::setTelephony(std::move(telephony));
        auto opener = std::make_unique<RecordingUrlOpener>();
        m_opener = opener.get();
        Platform::setUrlOpener(std::move(opener));
        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
    }
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->rootContext()->setContextProperty(QStringLiteral("driver"), new Driver(m_telephony, m_opener));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(contactsview, Setup)
#include "tst_contactsview.moc"
