import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// A floating popup over the main screen.
Item {
    id: scene
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    MainView { app: testApp; anchors.fill: parent }
    PopupView {
        id: popup
        type: PopupLayout.Floating
        position: PopupLayout.Center
        accessibleName: "Enter a prefix"
        ColumnLayout {
            spacing: Theme.spacing
            Label { text: "Enter a prefix"; font.pointSize: Theme.titleSize; font.bold: true }
            Label {
                text: "Type the code your carrier uses to withhold your number."
                wrapMode: Text.Wrap
                Layout.preferredWidth: 280
                Layout.maximumWidth: 280
                color: Theme.secondaryText
            }
            TextField { text: "#31#"; Layout.fillWidth: true }
            RowLayout {
                Layout.alignment: Qt.AlignRight
                Button { text: "Cancel"; flat: true }
                Button { text: "Save"; highlighted: true }
            }
        }
    }
    property var steps: [[200, function() { popup.isPresented = true }]]
}
