import QtQuick
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
    UserGuideForQuietonView { id: guide; anchors.fill: parent }
    Connections {
        target: defaults
        function onValueChanged(key) {
            if (key === "isReadUserGuide")
                scene.stored = defaults.boolForKey(key)
        }
    }
    Text {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.margins: 8
        font.pixelSize: 11
        color: "#8E8E93"
        text: "countdown " + guide.timeRemaining + " \u00b7 isReadUserGuide: " + scene.stored
    }
}
