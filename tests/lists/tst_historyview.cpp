// The history screen in real QML views, over the app's history in a real
// SQLite file and a telephony that records requests and reports calls.
#include "HistoryCallDataService.h"
#include "HistoryViewModel.h"
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "QuietonApp.h"
#include "Service.h"
#include "UserDefaultsService.h"

#include <QQmlContext>
#include <QtQuickTest>


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
        app().history().addHistory(text(firstName), text(lastName), telephone, hidden);
    }
    Q_INVOKABLE void clearHistory() { app().history().deleteAllHistory(); }
    // A history model over the app's store, for one screen.
    Q_INVOKABLE HistoryViewModel *newModel()
    {
        return new HistoryViewModel(app().history(), app().defaults(), app().service(), this);
    }
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
        context->setContextProperty(QStringLiteral("history"), new HistoryDriver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(historyview, Setup)
#include "tst_historyview.moc"
