import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The question before a private call is placed through the modem: the main
// screen with the confirmation on top, as after a widget link.
Item {
    property int settleMs: 1500
    property var steps: [
        [1500, function() { testApp.handleOpenUrl("quieton://call?number=%2B33%206%2012%2034%2056%2078&hidden=true") }]
    ]

    Component.onCompleted: {
        defaults.setBool("hasCompletedFirstLaunch", true)
        defaults.setString("prefix", "#31#")
    }
    Loader { anchors.fill: parent; active: true; sourceComponent: MainView { app: testApp; } }
    CallConfirmationDialog { confirmation: testApp.confirmation; }
}
