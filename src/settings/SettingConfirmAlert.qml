import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material

// A destructive action of the settings screen, asked first: "Cancel" and the
// action's own button. The buttons are named `name` + "CancelButton" and
// `name` + "ConfirmButton".
SettingAlert {
    id: confirm
    property string name
    property string actionText
    property color actionColor: "#FF3B30"
    signal confirmed()

    footer: DialogButtonBox {
        Button {
            objectName: confirm.name + "CancelButton"
            text: qsTr("Cancel")
            font.capitalization: Font.MixedCase
            flat: true
            font.bold: true
            onClicked: confirm.close()
        }
        Button {
            objectName: confirm.name + "ConfirmButton"
            text: confirm.actionText
            font.capitalization: Font.MixedCase
            flat: true
            Material.foreground: confirm.actionColor
            onClicked: {
                confirm.confirmed()
                confirm.close()
            }
        }
    }
}
