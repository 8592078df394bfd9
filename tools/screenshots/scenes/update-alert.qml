import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The update alert over the main screen, as a check that found a newer
// version in the store shows it.
Item {
    id: scene
    property int settleMs: 1500
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    MainView { app: testApp; id: main; anchors.fill: parent }

    property var steps: [
        [300, function() {
            testApp.checkNewVersionService.showAppUpdateAlertWithVersion(main, "1.1.0", false, CheckUpdate.urlAppStore, false)
        }]
    ]
}
