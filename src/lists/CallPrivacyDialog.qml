import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Lists

// "Choose Call Privacy": asked before calling someone from the contacts or
// the history list. The screen decides what each answer does.
Dialog {
    id: dialog

    signal privateDialingChosen()
    signal normalDialingChosen()

    anchors.centerIn: Overlay.overlay
    // Never narrower than a phone allows, also while the window is still being sized.
    width: Math.max(240, Math.min(parent ? parent.width - 48 : 320, 360))
    modal: true
    closePolicy: Popup.CloseOnEscape
    topPadding: 0

    header: Label {
        text: qsTr("Choose Call Privacy")
        // One line, neither wrapped nor elided: a title whose height
        // depends on its width makes the dialog's height depend on itself.
        horizontalAlignment: Text.AlignHCenter
        font.bold: true
        padding: 24
        bottomPadding: 8
    }

    contentItem: Label {
        text: qsTr("Select whether you want the call to be private or not. Your choice here will determine whether your call details are visible to others.")
        wrapMode: Text.Wrap
        horizontalAlignment: Text.AlignHCenter
        color: "#3C3C43"
    }

    // Three stacked answers, as a phone's action alert shows them.
    footer: ColumnLayout {
        spacing: 0
        Button {
            objectName: "privateDialingButton"
            text: qsTr("Private dialing")
            flat: true
            font.capitalization: Font.MixedCase
            Layout.fillWidth: true
            onClicked: {
                dialog.close()
                dialog.privateDialingChosen()
            }
        }
        Button {
            objectName: "normalDialingButton"
            text: qsTr("Normal Dialing")
            flat: true
            font.capitalization: Font.MixedCase
            Layout.fillWidth: true
            onClicked: {
                dialog.close()
                dialog.normalDialingChosen()
            }
        }
        Button {
            objectName: "cancelButton"
            text: qsTr("Cancel")
            flat: true
            font.bold: true
            font.capitalization: Font.MixedCase
            Layout.fillWidth: true
            onClicked: dialog.reject()
        }
    }
}
