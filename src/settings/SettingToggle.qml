import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts

// A switch row that always shows the model's value: the model may turn
// other switches off when this one is turned on.
SwitchDelegate {
    id: toggle
    property bool value: false
    property bool last: false
    signal userToggled(bool on)

    Layout.fillWidth: true
    leftPadding: 16
    checked: value
    Accessible.name: text
    onToggled: {
        userToggled(checked)
        checked = Qt.binding(() => toggle.value)
    }
    Rectangle {
        visible: !toggle.last
        anchors.left: parent.left
        anchors.leftMargin: 16
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        height: 1
        color: "#D1D1D6"
    }
}
