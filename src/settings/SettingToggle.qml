import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// A switch row that always shows the model's value: the model may turn
// other switches off when this one is turned on.
SwitchDelegate {
    id: toggle
    property bool value: false
    property bool last: false
    signal userToggled(bool on)

    Layout.fillWidth: true
    leftPadding: Theme.spacingLarge
    hoverEnabled: false
    checked: toggle.value
    Accessible.name: toggle.text
    Accessible.onPressAction: toggle.flip()
    Accessible.onToggleAction: toggle.flip()
    background: Rectangle { color: Theme.pressed; visible: toggle.pressed }
    contentItem: Label {
        text: toggle.text
        font.pointSize: Theme.bodySize
        color: Theme.text
        wrapMode: Text.Wrap
        verticalAlignment: Text.AlignVCenter
        rightPadding: toggle.indicator.width + toggle.spacing
        leftPadding: 0
    }

    function flip() {
        toggle.userToggled(!toggle.value)
    }
    onToggled: {
        toggle.userToggled(toggle.checked)
        toggle.checked = Qt.binding(() => toggle.value)
    }
    SettingSeparator { visible: !toggle.last }
}
