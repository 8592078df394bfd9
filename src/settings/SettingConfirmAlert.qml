import QtQuick
import QtQuick.Controls
import Quieton.Core

// A destructive action asked first: buttons `name` + "CancelButton" and
// `name` + "ConfirmButton".
Alert {
    id: confirm
    property string name
    property string actionText
    property color actionColor: Theme.destructive
    signal confirmed()

    cancelButton: cancel
    destructiveButton: confirmButton
    Button {
        id: cancel
        objectName: confirm.name + "CancelButton"
        text: qsTr("Cancel")
    }
    Button {
        id: confirmButton
        objectName: confirm.name + "ConfirmButton"
        text: confirm.actionText
        onClicked: confirm.confirmed()
    }
    // The action's own colour, over the alert's red.
    Binding { target: confirmButton; property: "Material.foreground"; value: confirm.actionColor; when: confirm.opened }
}
