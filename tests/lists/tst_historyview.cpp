// The history screen in real QML views, over the app's history in a real
// SQLite file and a telephony that records requests and reports calls.
#include "HistoryCallDataService.h"
#include "HistoryViewModel.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "QuietonApp.h"
#include "RecordingPlatform.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QQmlContext>
#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

// The phone and the history file, plus records written straight into the
// app's history.
class HistoryDriver : public PhoneDriver
{
    Q_OBJECT
public:
    using PhoneDriver::PhoneDriver;

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
        QuietonApp::create(nullptr, nullptr)->historyDataService()->addHistory(text(firstName), text(lastName), telephone, hidden);
    }
    Q_INVOKABLE void clearHistory() { QuietonApp::create(nullptr, nullptr)->historyDataService()->deleteAllHistory(); }
    // A history model over the app's store, for one screen.
    Q_INVOKABLE HistoryViewModel *newModel()
    {
        return new HistoryViewModel(*QuietonApp::create(nullptr, nullptr)->historyDataService(),
                                    *UserDefaultsService::shared(), *Service::shared(), this);
    }
};

class Setup : public QuickTestSetup
{
    RecordingTelephony *m_telephony = nullptr;

protected:
    void prepare() override
    {
        m_telephony = RecordingPlatform::installTelephony();
        markOnboardingDone();
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("history"), new HistoryDriver(m_telephony));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(historyview, Setup)
#include "tst_historyview.moc"
