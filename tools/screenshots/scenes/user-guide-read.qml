import QtQuick
import QtQuick.Controls
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The user guide after its countdown, with the stored flag noted in a corner.
Item {
    id: scene
    property int settleMs: 7000
    property bool stored: defaults.boolForKey("isReadUserGuide")
    readonly property SettingViewModel settings: testApp.createSettingViewModel(scene)
    UserGuideForQuietonView { id: guide; vm: scene.settings.createUserGuideModel(guide); anchors.fill: parent }
    Connections {
        target: defaults
        function onValueChanged(key) {
            if (key === "isReadUserGuide")
                scene.stored = defaults.boolForKey(key)
        }
    }
    Label {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.margins: Theme.spacingSmall
        font.pointSize: Theme.footnoteSize
        color: Theme.tertiaryText
        text: "countdown " + guide.timeRemaining + " \u00b7 isReadUserGuide: " + scene.stored
    }
}
