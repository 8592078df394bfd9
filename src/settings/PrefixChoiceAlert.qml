pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core
import Quieton.Settings

// The several prefixes of the chosen country, one button each.
Alert {
    id: alert
    objectName: "choiceDialog"
    required property SettingViewModel vm

    title: qsTr("There are several prefixes that can private your number. Please choose one.")
    closePolicy: Popup.CloseOnEscape
    // The country was chosen just before; its prefixes are read as it opens.
    onAboutToShow: choiceRows.model = alert.vm.prefixChoices()

    body: Repeater {
        id: choiceRows
        delegate: Button {
            id: choiceButton
            required property int index
            required property var modelData
            objectName: "choice" + choiceButton.index
            Layout.fillWidth: true
            text: choiceButton.modelData.caption
            flat: true
            font.capitalization: Font.MixedCase
            font.pointSize: Theme.bodySize
            Material.foreground: Theme.link
            Accessible.onPressAction: choiceButton.clicked()
            onClicked: {
                alert.vm.choosePrefix(choiceButton.modelData.prefix)
                alert.close()
            }
        }
    }
    footer: DialogButtonBox {
        Button {
            objectName: "choiceCancelButton"
            text: qsTr("Cancel")
            font.capitalization: Font.MixedCase
            flat: true
            font.bold: true
            Accessible.onPressAction: clicked()
            onClicked: alert.close()
        }
    }
}
