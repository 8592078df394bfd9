// The popup presenter in real QML views, also as a screen reader meets it.
#include "QuickTestSetup.h"

#include <QtQuickTest>

QUICK_TEST_MAIN_WITH_SETUP(popupview, QuickTestSetup)
