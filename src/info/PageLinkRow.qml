import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// One row of the about and feedback screens: a caption and a chevron that
// points the way the layout reads. A screen reader's press taps it.
ItemDelegate {
    id: row

    property string caption
    property bool divided: true
    // Read when the row is built: pointing left in right-to-left layouts.
    readonly property string chevronName: Application.layoutDirection === Qt.RightToLeft ? "chevron.left" : "chevron.right"

    Layout.fillWidth: true
    leftPadding: Theme.spacingLarge
    rightPadding: Theme.spacingSmall
    topPadding: Theme.spacing
    bottomPadding: Theme.spacing
    font.pointSize: Theme.bodySize
    Accessible.role: Accessible.Button
    Accessible.name: row.caption
    Accessible.onPressAction: row.clicked()
    // A plain pressed shade: a ripple keeps an image per visible row.
    background: Rectangle { color: row.pressed ? Theme.pressed : Theme.surface }

    contentItem: RowLayout {
        spacing: Theme.spacingSmall
        Label {
            Layout.fillWidth: true
            text: row.caption
            font: row.font
            color: Theme.text
            wrapMode: Text.Wrap
            Accessible.ignored: true
        }
        ToolButton {
            objectName: "chevron"
            enabled: false
            focusPolicy: Qt.NoFocus
            padding: 0
            background: null
            icon.source: "qrc:/Quieton/icons/" + row.chevronName + ".svg"
            icon.color: Theme.tertiaryText
            icon.width: Theme.iconSize / 2
            icon.height: Theme.iconSize / 2
            display: AbstractButton.IconOnly
            Accessible.ignored: true
        }
    }

    Rectangle {
        visible: row.divided
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: row.leftPadding
        anchors.bottom: parent.bottom
        height: 1
        color: Theme.separator
    }
}
