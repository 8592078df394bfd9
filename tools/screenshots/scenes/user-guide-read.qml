import QtQuick
import Quieton

// The user guide after its countdown: the guide is stored as read.
Item {
    id: scene
    property int settleMs: 7000
    UserGuideForQuietonView { id: guide; anchors.fill: parent }
    Text {
        anchors.bottom: parent.bottom
        anchors.right: parent.right
        anchors.margins: 8
        font.pixelSize: 11
        color: "#8E8E93"
        text: "isReadUserGuide: " + (guide.timeRemaining === 0 && UserDefaultsService.boolForKey("isReadUserGuide"))
    }
}
