// The popup presenter in real QML views.
#include "QuickTestSetup.h"

#include <QtQml/qqmlextensionplugin.h>
#include <QtQuickTest>

Q_IMPORT_QML_PLUGIN(QuietonPlugin)

QUICK_TEST_MAIN_WITH_SETUP(popupview, QuickTestSetup)
