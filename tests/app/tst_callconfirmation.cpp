// The confirmation before a call, from the dialler and from links through
// the dialog, on a telephony that dials by itself as a modem does.
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "RecordingTelephony.h"

#include <QQmlContext>
#include <QtQuickTest>


class Setup : public QuickTestSetup
{
protected:
    void prepare() override
    {
        testApp().telephony->dialsItself = true;
        markOnboardingDone();
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(testApp()));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(callconfirmation, Setup)
