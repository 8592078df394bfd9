import QtQuick
import Quieton

// The history tab before any call was recorded.
Item {
    id: scene
    Component.onCompleted: UserDefaultsService.setBool("hasCompletedFirstLaunch", true)
    MainView { id: main; anchors.fill: parent }
    property var steps: [
        [100, function() { QuietonApp.historyDataService.deleteAllHistory(); main.vm.selectedTab = 2 }]
    ]
}
