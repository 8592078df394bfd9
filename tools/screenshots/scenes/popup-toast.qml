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
        contentMargin: Theme.spacing
        color: Theme.raised
        accessibleName: "Prefix saved: #31#"
        RowLayout {
            spacing: Theme.spacing
            Label { text: "\u2713"; color: Theme.call; font.pointSize: Theme.titleSize; font.bold: true }
            Label { text: "Prefix saved: #31#"; font.pointSize: Theme.headlineSize; wrapMode: Text.Wrap; Layout.fillWidth: true }
        }
    }
    property var steps: [[200, function() { toast.isPresented = true }]]
}
