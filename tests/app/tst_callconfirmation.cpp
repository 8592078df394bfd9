// The confirmation before a call, from the dialler and from links through
// the dialog, on a telephony that dials by itself as a modem does.
#include "PhoneDriver.h"
#include "QuickTestSetup.h"
#include "RecordingPlatform.h"
#include "RecordingTelephony.h"

#include <QQmlContext>
#include <QtQuickTest>


class Setup : public QuickTestSetup
{
    RecordingTelephony *m_telephony = nullptr;

protected:
    void prepare() override
    {
        m_telephony = RecordingPlatform::installTelephony();
        m_telephony->dialsItself = true;
        markOnboardingDone();
    }
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("phone"), new PhoneDriver(m_telephony));
    }
};

QUICK_TEST_MAIN_WITH_SETUP(callconfirmation, Setup)
