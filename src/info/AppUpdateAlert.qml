import QtQuick
import QtQuick.Controls
import Quieton.Core
import Quieton.Info

// "A newer version is out": made by UpdateAlertPresenter over a window's
// content, removes itself once closed. A forced update offers no "Not now";
// "Update Now" goes through the checker that found the update.
Alert {
    id: alert
    objectName: "appUpdateAlert"

    required property CheckUpdate checker
    property string version
    property bool force: false
    property string appURL
    property bool isTestFlight: false

    title: qsTr("New version")
    message: qsTr("A new version of Quieton is now available for download, update now!")

    // Declared in the footer itself, where the tests of the update check look.
    footer: DialogButtonBox {
        Button {
            objectName: "notNowButton"
            text: qsTr("Not now")
            visible: !alert.force
        }
        Button {
            objectName: "updateNowButton"
            text: qsTr("Update Now")
            onClicked: alert.checker.openAppURL(alert.appURL)
        }
    }

    onClosed: alert.destroy()
}
