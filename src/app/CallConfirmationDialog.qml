import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.App

// Asks before a call is placed in the user's name, as a phone's own dialler
// does: the full dial string (prefix included), "Call" and "Cancel". Shown
// while `confirmation` has a question pending.
Dialog {
    id: dialog

    required property CallConfirmation confirmation

    anchors.centerIn: Overlay.overlay
    width: Math.min(parent ? parent.width - 48 : 320, 340)
    modal: true
    closePolicy: Popup.NoAutoClose
    visible: dialog.confirmation.pending

    header: Label {
        text: qsTr("Place this call?")
        wrapMode: Text.Wrap
        font.bold: true
        font.pixelSize: 18
        padding: 24
        bottomPadding: 0
    }

    contentItem: ColumnLayout {
        spacing: 12

        Label {
            objectName: "dialString"
            Layout.fillWidth: true
            text: dialog.confirmation.dialString
            font.pixelSize: 28
            font.bold: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WrapAnywhere
            Accessible.name: qsTr("Number to call: %1").arg(dialog.confirmation.dialString)
        }

        Label {
            Layout.fillWidth: true
            text: qsTr("The number is dialled as shown, prefix included.")
            wrapMode: Text.Wrap
            opacity: 0.7
        }
    }

    footer: RowLayout {
        spacing: 8

        Item { Layout.fillWidth: true }

        Button {
            objectName: "cancelButton"
            text: qsTr("Cancel")
            font.capitalization: Font.MixedCase
            flat: true
            Accessible.name: qsTr("Cancel")
            Accessible.description: qsTr("Do not place the call")
            onClicked: dialog.confirmation.cancel()
        }

        Button {
            objectName: "callButton"
            text: qsTr("Call")
            font.capitalization: Font.MixedCase
            icon.source: "qrc:/Quieton/icons/phone.svg"
            highlighted: true
            Layout.rightMargin: 16
            Layout.bottomMargin: 8
            Accessible.name: qsTr("Call")
            Accessible.description: qsTr("Place the call to %1").arg(dialog.confirmation.dialString)
            onClicked: dialog.confirmation.call()
        }
    }

    // Escape or the back key answer "Cancel".
    Shortcut {
        sequences: ["Esc", "Back"]
        enabled: dialog.visible
        onActivated: dialog.confirmation.cancel()
    }
}
