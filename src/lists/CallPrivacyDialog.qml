import QtQuick
import QtQuick.Controls
import Quieton.Core
import Quieton.Lists

// "Choose Call Privacy": asked before calling someone from the contacts or
// the history list. The screen decides what each answer does; "Cancel" and
// Escape do nothing but close it.
Alert {
    id: dialog

    signal privateDialingChosen()
    signal normalDialingChosen()

    title: qsTr("Choose Call Privacy")
    message: qsTr("Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.")

    // Three stacked answers, as a phone's action alert shows them.
    stacked: true
    Button {
        objectName: "privateDialingButton"
        text: qsTr("Private dialing")
        onClicked: dialog.privateDialingChosen()
    }
    Button {
        objectName: "normalDialingButton"
        text: qsTr("Normal Dialing")
        onClicked: dialog.normalDialingChosen()
    }
    cancelButton: cancel
    Button {
        id: cancel
        objectName: "cancelButton"
        text: qsTr("Cancel")
    }
}
