import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// One section of the settings screen: its caption, then its rows on a card.
ColumnLayout {
    id: group
    property string title
    default property alias rows: groupColumn.data

    Layout.fillWidth: true
    spacing: Theme.spacingSmall

    Label {
        Layout.fillWidth: true
        Layout.leftMargin: Theme.spacingLarge
        Layout.topMargin: Theme.spacing
        visible: group.title.length > 0
        text: group.title
        font.pointSize: Theme.footnoteSize
        font.capitalization: Font.AllUppercase
        color: Theme.secondaryText
        wrapMode: Text.Wrap
        Accessible.role: Accessible.Heading
        Accessible.name: group.title
    }
    Pane {
        Layout.fillWidth: true
        padding: 0
        Accessible.role: Accessible.Pane
        Accessible.name: group.title
        background: Rectangle { radius: Theme.radius; color: Theme.surface }
        ColumnLayout {
            id: groupColumn
            anchors.left: parent.left
            anchors.right: parent.right
            spacing: 0
        }
    }
}
