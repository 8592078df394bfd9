import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core

// One tappable row: optional icon, caption, detail text, extra items on the
// right and an optional chevron.
ItemDelegate {
    id: row
    property string iconName: ""
    property string detail: ""
    property color textColor: Theme.text
    property bool chevron: false
    property bool last: false
    default property alias trailing: trailingItems.data

    Layout.fillWidth: true
    implicitHeight: Math.max(Theme.touchTarget, rowContent.implicitHeight + topPadding + bottomPadding)
    leftPadding: Theme.spacingLarge
    rightPadding: Theme.spacing
    topPadding: Theme.spacingSmall
    bottomPadding: Theme.spacingSmall
    hoverEnabled: false
    font.pointSize: Theme.bodySize
    focusPolicy: Qt.TabFocus
    Accessible.name: row.detail.length > 0 ? row.text + " " + row.detail : row.text
    Accessible.onPressAction: row.clicked()
    // A plain pressed shade: a ripple keeps an image per visible row.
    background: Item {
        Rectangle {
            anchors.fill: parent
            color: Theme.pressed
            visible: row.pressed
        }
        SettingSeparator { visible: !row.last }
    }

    // Laid out over the padded area rather than as the content item, so that
    // rows may put their own items into it.
    contentItem: Item { }
    RowLayout {
        id: rowContent
        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        height: row.availableHeight
        spacing: Theme.spacing
        SettingIcon {
            visible: row.iconName.length > 0
            name: row.iconName
            tint: Theme.link
        }
        Label {
            text: row.text
            font.pointSize: Theme.bodySize
            color: row.textColor
            wrapMode: Text.Wrap
            Layout.fillWidth: true
            Layout.preferredWidth: implicitWidth
        }
        Label {
            objectName: "detail"
            visible: row.detail.length > 0
            text: row.detail
            font.pointSize: Theme.bodySize
            color: Theme.secondaryText
            horizontalAlignment: Text.AlignRight
            wrapMode: Text.WrapAnywhere
            Layout.fillWidth: true
            Layout.preferredWidth: implicitWidth
        }
        Flow {
            id: trailingItems
            spacing: Theme.spacingSmall
            Layout.alignment: Qt.AlignVCenter
            Layout.maximumWidth: row.availableWidth / 2
        }
        SettingIcon {
            visible: row.chevron
            name: "chevron.right"
            tint: Theme.tertiaryText
            flipped: row.mirrored
        }
    }
}
