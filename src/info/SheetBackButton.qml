import QtQuick
import QtQuick.Controls
import Quieton.Core

// The round back arrow of the about and feedback screens; it points the way
// back in right-to-left layouts as well.
ToolButton {
    id: back
    objectName: "backButton"
    icon.source: "qrc:/Quieton/icons/arrow.backward.circle.svg"
    icon.width: Theme.iconSize
    icon.height: Theme.iconSize
    icon.color: Theme.link
    display: AbstractButton.IconOnly
    Accessible.name: qsTr("Back")
    Accessible.onPressAction: back.clicked()
    transform: Scale {
        origin.x: back.width / 2
        xScale: Application.layoutDirection === Qt.RightToLeft ? -1 : 1
    }
}
