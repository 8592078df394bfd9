import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Info

// "A newer version is out": made by UpdateAlertPresenter over a window's
// content, removes itself once closed. A forced update offers no "Not now";
// "Update Now" goes through the checker that found the update.
Dialog {
    id: alert
    objectName: "appUpdateAlert"

    required property CheckUpdate checker
    property string version
    property bool force: false
    property string appURL
    property bool isTestFlight: false

    anchors.centerIn: Overlay.overlay
    width: Math.min(parent ? parent.width - 48 : 320, 340)
    modal: true
    closePolicy: Popup.NoAutoClose
    title: qsTr("New version")

    Label {
        objectName: "appUpdateAlertMessage"
        width: parent.width
        text: qsTr("A new version of Quieton is now available for download, update now!")
        wrapMode: Text.Wrap
    }

    // A plain row: a hidden "Not now" takes no room in it.
    footer: RowLayout {
        spacing: 8
        Item { Layout.fillWidth: true }
        Button {
            objectName: "notNowButton"
            text: qsTr("Not now")
            font.capitalization: Font.MixedCase
            flat: true
            visible: !alert.force
            onClicked: alert.close()
        }
        Button {
            objectName: "updateNowButton"
            text: qsTr("Update Now")
            font.capitalization: Font.MixedCase
            flat: true
            onClicked: {
                alert.checker.openAppURL(alert.appURL)
                alert.close()
            }
        }
        Item { Layout.preferredWidth: 8 }
    }

    onClosed: alert.destroy()
}
