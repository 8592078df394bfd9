import QtQuick
import Quieton

// The dialler tab with nothing typed yet: the call button is grey.
Item {
    Component.onCompleted: UserDefaultsService.setBool("hasCompletedFirstLaunch", true)
    MainView { anchors.fill: parent }
}
