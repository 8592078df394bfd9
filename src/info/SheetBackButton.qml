import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import Quieton.Info

// The round back arrow of the about and feedback screens; it points the way
// back in right-to-left layouts as well.
ToolButton {
    id: back
    objectName: "backButton"
    implicitWidth: 48
    implicitHeight: 48
    Accessible.name: qsTr("Back")
    contentItem: IconImage {
        source: "qrc:/Quieton/icons/arrow.backward.circle.svg"
        sourceSize.width: 30
        sourceSize.height: 30
        fillMode: Image.Pad
        color: back.pressed ? "#66AFFF" : "#007AFF"
        mirror: Qt.application.layoutDirection === Qt.RightToLeft
    }
}
