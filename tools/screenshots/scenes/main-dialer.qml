import QtQuick
import Quieton

// The main screen as a returning user first sees it.
Item {
    Component.onCompleted: UserDefaultsService.setBool("hasCompletedFirstLaunch", true)
    Loader { anchors.fill: parent; active: true; sourceComponent: MainView { } }
}
