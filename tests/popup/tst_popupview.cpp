// The popup presenter and the alerts in real QML views, also as a screen
// reader meets them.
#include "QuickTestSetup.h"

#include <QtQuickTest>

QUICK_TEST_MAIN_WITH_SETUP(popupview, QuickTestSetup)
