import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// A toast at the top of the main screen.
Item {
    id: scene
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    MainView { app: testApp; anchors.fill: parent }
    PopupView {
        id: toast
        type: PopupLayout.Toast
        position: PopupLayout.Top
        appearFrom: PopupLayout.FromTop
        padding: 14
        color: "#2C2C2E"
        RowLayout {
            spacing: 10
            Label { text: "\u2713"; color: "#34C759"; font.pixelSize: 20; font.bold: true }
            Label { text: "Prefix saved: #31#"; color: "white"; font.pixelSize: 16; Layout.fillWidth: true }
        }
    }
    property var steps: [[200, function() { toast.isPresented = true }]]
}
