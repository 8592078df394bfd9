import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// A centred alert with a bold title and an optional message.
Dialog {
    id: alert
    property string message: ""

    parent: Overlay.overlay
    anchors.centerIn: parent
    width: Math.min(parent ? parent.width - 48 : 312, 360)
    modal: true
    closePolicy: Popup.CloseOnEscape
    topPadding: 0

    header: Label {
        text: alert.title
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        font.bold: true
        padding: 24
        bottomPadding: 8
    }
    contentItem: ColumnLayout {
        Label {
            Layout.fillWidth: true
            text: alert.message
            visible: alert.message.length > 0
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            color: "#3C3C43"
        }
    }
}
