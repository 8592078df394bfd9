// The dialler screen in real QML views, on a telephony that records requests
// and reports calls, with the history in a real SQLite file.
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingPlatform.h"

#include <QQmlContext>
#include <QtQuickTest>


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
        context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(m_telephony));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(dialerview, Setup)
