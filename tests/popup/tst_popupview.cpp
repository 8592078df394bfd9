// The popup presenter in real QML views.
#include "QuickTestSetup.h"

#include <QtQuickTest>


QUICK_TEST_MAIN_WITH_SETUP(popupview, QuickTestSetup)
