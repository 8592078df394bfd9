import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core
import Quieton.App

// Asks before a call is placed in the user's name, as a phone's own dialler
// does: the full dial string (prefix included), "Call" and "Cancel". Shown
// while `confirmation` has a question pending; Escape and Back answer
// "Cancel".
Alert {
    id: dialog

    required property CallConfirmation confirmation

    visible: dialog.confirmation.pending
    title: qsTr("Place this call?")

    body: [
        Label {
            objectName: "dialString"
            Layout.fillWidth: true
            text: dialog.confirmation.dialString
            font.pointSize: Theme.largeTitleSize
            font.bold: true
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.WrapAtWordBoundaryOrAnywhere
            Accessible.name: qsTr("Number to call: %1").arg(dialog.confirmation.dialString)
        },
        Label {
            Layout.fillWidth: true
            text: qsTr("The number is dialled as shown, prefix included.")
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            color: Theme.secondaryText
            font.pointSize: Theme.footnoteSize
        }
    ]

    cancelButton: cancel
    Button {
        id: cancel
        objectName: "cancelButton"
        text: qsTr("Cancel")
        Accessible.description: qsTr("Do not place the call")
        onClicked: dialog.confirmation.cancel()
    }
    Button {
        objectName: "callButton"
        text: qsTr("Call")
        icon.source: "qrc:/Quieton/icons/phone.svg"
        highlighted: true
        Material.accent: Theme.call
        Accessible.description: qsTr("Place the call to %1").arg(dialog.confirmation.dialString)
        onClicked: dialog.confirmation.call()
    }
}
