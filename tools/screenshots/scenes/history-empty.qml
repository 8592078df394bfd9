import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The history tab before any call was recorded.
Item {
    id: scene
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    MainView { app: testApp; id: main; anchors.fill: parent }
    property var steps: [
        [100, function() { testApp.historyDataService.deleteAllHistory(); main.vm.selectedTab = 2 }]
    ]
}
