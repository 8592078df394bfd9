// The dialler screen and the call confirmation in real QML views, on a
// telephony that records requests and reports calls, with the history in a
// real SQLite file.
#include "PhoneDriver.h"
#include "QuickTestSetup.h"

#include <QQmlContext>
#include <QtQuickTest>

class Setup : public QuickTestSetup
{
protected:
    void prepare() override
    {
        markOnboardingDone();
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(dialerview, Setup)
