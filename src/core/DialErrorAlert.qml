import QtQuick
import QtQuick.Controls
import Quieton.Core

// Shown after a call that could not be placed. "OK" lowers the failure flag.
Dialog {
    id: alert

    required property Service service

    anchors.centerIn: Overlay.overlay
    width: Math.min(parent ? parent.width - 48 : 320, 340)
    modal: true
    closePolicy: Popup.NoAutoClose
    // Title and button only: no empty body between them.
    topPadding: 0
    bottomPadding: 0

    header: Label {
        text: qsTr("Unable to make the call. Please check the number or ensure your device supports calling.")
        wrapMode: Text.Wrap
        font.bold: true
        padding: 24
        bottomPadding: 8
    }

    footer: DialogButtonBox {
        Button {
            text: qsTr("OK")
            font.capitalization: Font.MixedCase
            flat: true
            onClicked: alert.accept()
        }
    }

    onAccepted: service.acknowledgeCallFailure()
}
