import QtQuick
import QtQuick.Controls
import Quieton.Core

// Shown after a call that could not be placed. "OK" (or Escape) lowers the
// failure flag.
Alert {
    id: alert

    required property Service service

    title: qsTr("Unable to make the call. Please check the number or ensure your device supports calling.")

    cancelButton: okButton
    Button {
        id: okButton
        objectName: "okButton"
        text: qsTr("OK")
        onClicked: alert.service.acknowledgeCallFailure()
    }
}
