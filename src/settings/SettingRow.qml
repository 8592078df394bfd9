import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// One tappable row: an optional icon, the caption, a detail text, extra
// items on the right and an optional chevron.
ItemDelegate {
    id: row
    property string iconName: ""
    property string detail: ""
    property color textColor: "black"
    property bool chevron: false
    property bool last: false
    default property alias trailing: trailingItems.data

    Layout.fillWidth: true
    implicitHeight: Math.max(48, implicitContentHeight + 16)
    leftPadding: 16
    rightPadding: 12
    hoverEnabled: false
    Accessible.name: text
    // A plain pressed shade: a ripple keeps an image per visible row.
    background: Rectangle { color: row.pressed ? "#E5E5EA" : "transparent" }

    contentItem: RowLayout {
        spacing: 10
        IconImage {
            visible: row.iconName.length > 0
            source: row.iconName.length > 0 ? "qrc:/Quieton/icons/" + row.iconName + ".svg" : ""
            sourceSize.width: 20
            sourceSize.height: 20
            color: "#007AFF"
        }
        Label {
            text: row.text
            color: row.textColor
            font.pixelSize: 16
            wrapMode: Text.Wrap
            Layout.fillWidth: row.detail.length === 0
        }
        Label {
            objectName: "detail"
            visible: row.detail.length > 0
            text: row.detail
            color: "#6C6C70"
            font.pixelSize: 16
            horizontalAlignment: Text.AlignRight
            elide: Text.ElideLeft
            Layout.fillWidth: true
        }
        Row {
            id: trailingItems
            spacing: 6
            Layout.alignment: Qt.AlignVCenter
        }
        IconImage {
            visible: row.chevron
            source: "qrc:/Quieton/icons/chevron.right.svg"
            sourceSize.width: 14
            sourceSize.height: 14
            color: "#C7C7CC"
        }
    }
    Rectangle {
        visible: !row.last
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: "#D1D1D6"
    }
}
