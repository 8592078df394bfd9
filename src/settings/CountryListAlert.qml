pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core
import Quieton.Settings

// "Select By Country": the carrier notice, then every country of the
// catalogue as a button, "All Other Countries" first.
Alert {
    id: alert
    objectName: "countryDialog"
    required property SettingViewModel vm
    signal chosen(int index, string country)

    title: qsTr("Select By Country")
    closePolicy: Popup.CloseOnEscape

    body: [
        Label {
            Layout.fillWidth: true
            text: qsTr("Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.")
            Layout.leftMargin: Theme.spacing
            Layout.rightMargin: Theme.spacing
            font.weight: Font.Light
            font.pointSize: Theme.bodySize
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        },
        ListView {
            id: countryList
            objectName: "countryList"
            Layout.fillWidth: true
            // Part of the window's height, so that the list's end is out of
            // sight and tells that it scrolls.
            Layout.preferredHeight: Math.min(countryList.contentHeight,
                                             Math.max(Theme.touchTarget * 2, (alert.parent ? alert.parent.height : 600) * 0.4))
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            // Rows out of sight are made again when scrolled to, so that a
            // screen reader meets only the rows shown.
            reuseItems: false
            cacheBuffer: 0
            model: alert.vm.countryList
            ScrollIndicator.vertical: ScrollIndicator { active: true }
            delegate: Button {
                id: countryButton
                required property int index
                required property string modelData
                objectName: "country:" + countryButton.modelData
                width: ListView.view.width
                text: countryButton.modelData
                flat: true
                font.capitalization: Font.MixedCase
                font.pointSize: Theme.bodySize
                Material.foreground: Theme.link
                Accessible.onPressAction: countryButton.clicked()
                onClicked: alert.chosen(countryButton.index, countryButton.modelData)
            }
        }
    ]
    footer: DialogButtonBox {
        Button {
            objectName: "countryCancelButton"
            text: qsTr("Cancel")
            font.capitalization: Font.MixedCase
            flat: true
            Accessible.onPressAction: clicked()
            onClicked: alert.close()
        }
    }
}
