import QtQuick
import Quieton

// The update alert over the main screen, as a check that found a newer
// version in the store shows it.
Item {
    id: scene
    property int settleMs: 1500
    Component.onCompleted: UserDefaultsService.setBool("hasCompletedFirstLaunch", true)
    MainView { id: main; anchors.fill: parent }

    property var steps: [
        [300, function() {
            UpdateAlertPresenter.showAppUpdateAlertWithVersion(main, "1.1.0", false, CheckUpdate.urlAppStore, false)
        }]
    ]
}
