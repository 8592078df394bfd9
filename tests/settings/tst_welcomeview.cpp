// Onboarding in real QML views and in the app's own window, on a fresh
// settings file.
#include "QuickTestSetup.h"
#include "RecordingSharer.h"
#include "RecordingTelephony.h"
#include "RecordingUrlOpener.h"
#include "SettingsFileReader.h"

#include <QQmlContext>
#include <QtQuickTest>


class Setup : public QuickTestSetup
{
protected:
    void publish(QQmlContext *context) override
    {
        context->setContextProperty(QStringLiteral("settingsFile"), new SettingsFileReader);
    }
};

QUICK_TEST_MAIN_WITH_SETUP(welcomeview, Setup)
