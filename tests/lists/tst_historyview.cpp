// The history screen in real QML views, over the app's history in a real
// SQLite file and a telephony that records requests and reports calls.
#include "HistoryCallDataService.h"
#include "Platform.h"
#include "RecordingTelephony.h"
#include "TestHome.h"
#include "UserDefaultsService.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// What the QML tests need of the phone and of the history file.
class HistoryDriver : public QObject
{
    Q_OBJECT
public:
    explicit HistoryDriver(RecordingTelephony *telephony) : m_telephony(telephony) { }

    Q_INVOKABLE void setCallsPossible(bool possible) { m_telephony->callsPossible = possible; }
    Q_INVOKABLE int openedCount() const { return int(m_telephony->opened.size()); }
    Q_INVOKABLE QString lastOpened() const { return m_telephony->opened.value(m_telephony->opened.size() - 1); }
    Q_INVOKABLE void report(const QString &id, bool outgoing, bool connected, bool ended)
    {
        m_telephony->report(id, outgoing, connected, ended);
    }
    // A record as the app stores it; names left out are stored absent.
    Q_INVOKABLE void addRecord(const QString &telephone, bool hidden, const QVariant &firstName = QVariant(),
                               const QVariant &lastName = QVariant())
    {
        const auto text = [](const QVariant &value) {
            if (!value.isValid() || value.isNull())
                return QString();
            const QString s = value.toString();
            return s.isNull() ? QStringLiteral("") : s;
        };
        HistoryCallDataService::shared()->addHistory(text(firstName), text(lastName), telephone, hidden);
    }
    Q_INVOKABLE void clearHistory() { HistoryCallDataService::shared()->deleteAllHistory(); }
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
    Q_INVOKABLE QStringList storedTelephones() const
    {
        QStringList out;
        for (const QVariant &row : storedRows())
            out.append(row.toMap().value(QStringLiteral("telephone")).toString());
        return out;
    }

private:
    RecordingTelephony *m_telephony;
};

class Setup : public QObject
{
    Q_OBJECT
    RecordingTelephony *m_telephony = nullptr;

public slots:
    void applicationAvailable()
    {
        TestHome::use();
        auto telephony = std::make_unique<RecordingTelephony>();
        m_telephony = telephony.get();
        Platform::setTelephony(std::move(telephony));
        UserDefaultsService::shared()->setBool(QStringLiteral("hasCompletedFirstLaunch"), true);
    }
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/"));
        engine->rootContext()->setContextProperty(QStringLiteral("history"), new HistoryDriver(m_telephony));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(historyview, Setup)
#include "tst_historyview.moc"
