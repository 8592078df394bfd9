import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The user guide right after it was opened, while it counts down.
Item {
    property int settleMs: 1500
    id: scene
    readonly property SettingViewModel settings: testApp.createSettingViewModel(scene)
    UserGuideForQuietonView { id: guide; vm: scene.settings.createUserGuideModel(guide); anchors.fill: parent }
}
