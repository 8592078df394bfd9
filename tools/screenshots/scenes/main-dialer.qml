import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The main screen as a returning user first sees it.
Item {
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    Loader { anchors.fill: parent; active: true; sourceComponent: MainView { app: testApp; } }
}
