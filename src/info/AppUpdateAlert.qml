import QtQuick
import QtQuick.Controls
import Quieton.Core
import Quieton.Info

// Made by UpdateAlertPresenter; removes itself once closed.
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
