// The dialler and the call confirmation in real QML views, with a real history file.
#include "PhoneDriver.h"
#include "QuickTestSetup.h"

#include <QQmlContext>
#include <QtQuickTest>

class Setup : public QuickTestSetup
{
protected:
    void prepare() override { markOnboardingDone(); }
    void publish(QQmlContext *context) override { context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(testApp())); }
};

QUICK_TEST_MAIN_WITH_SETUP(dialerview, Setup)
