import QtQuick
import Quieton

// The question before a private call is placed through the modem: the main
// screen with the confirmation on top, as after a widget link.
Item {
    property int settleMs: 1500
    property var steps: [
        [1500, function() { QuietonApp.handleOpenUrl("quieton://call?number=%2B33%206%2012%2034%2056%2078&hidden=true") }]
    ]

    Component.onCompleted: {
        UserDefaultsService.setBool("hasCompletedFirstLaunch", true)
        UserDefaultsService.setString("prefix", "#31#")
    }
    Loader { anchors.fill: parent; active: true; sourceComponent: MainView { } }
    CallConfirmationDialog { }
}
