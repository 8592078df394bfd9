#include "QuickTestSetup.h"
#include "RecordingPlatform.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

class Setup : public QuickTestSetup
{
protected:
    void prepare() override
    {
        RecordingPlatform::installTelephony();
        markOnboardingDone();
    }
};

QUICK_TEST_MAIN_WITH_SETUP(mainview, Setup)
