import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts
import Quieton.Info

// One row of the about and feedback screens: a caption and a chevron that
// points the way the layout reads.
ItemDelegate {
    id: row

    property string caption
    // The last row of a group has no hairline under it.
    property bool divided: true
    // Read when the row is built: pointing left in right-to-left layouts.
    readonly property string chevronName: Qt.application.layoutDirection === Qt.RightToLeft ? "chevron.left" : "chevron.right"

    Layout.fillWidth: true
    Layout.preferredHeight: 54
    leftPadding: 20
    rightPadding: 20
    Accessible.role: Accessible.Button
    Accessible.name: row.caption
    // A plain pressed shade: a ripple keeps an image per visible row.
    background: Rectangle { color: row.pressed ? "#E5E5EA" : "transparent" }

    contentItem: RowLayout {
        spacing: 12
        Label {
            Layout.fillWidth: true
            text: row.caption
            font.pixelSize: 17
            color: "#1C1C1E"
            elide: Text.ElideRight
        }
        IconImage {
            objectName: "chevron"
            source: "qrc:/Quieton/icons/" + row.chevronName + ".svg"
            sourceSize.width: 14
            sourceSize.height: 14
            color: "#C7C7CC"
            Accessible.ignored: true
        }
    }

    // A hairline under the row.
    Rectangle {
        visible: row.divided
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.leftMargin: row.leftPadding
        anchors.bottom: parent.bottom
        height: 1
        color: "#E5E5EA"
    }
}
