pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts
import Quieton.Core

// The dialler tab: the typed number, a telephone keypad, the two per-call
// choices and the call button.
Page {
    id: dialerView
    objectName: "dialerView"

    required property DialerViewModel vm
    readonly property Service service: vm.service
    property bool showingErrorDialNumberAlert: false

    // Sizes follow the space the tab gets (and so the text size of the window).
    readonly property real keySize: Math.max(52, Math.min(80, (width - 96) / 3, (height - 380) / 4.6))
    readonly property color callGreen: "#34C759"
    readonly property color inactiveGrey: "#C7C7CC"

    focus: true
    background: Rectangle { color: "white" }

    // Called by the main screen each time the tab is shown.
    function appeared() {
        vm.loadSettings()
        forceActiveFocus()
    }

    function call() {
        if (vm.numberPhoneTyping.length === 0)
            return
        if (vm.call())
            showingErrorDialNumberAlert = true
    }

    onShowingErrorDialNumberAlertChanged: {
        if (showingErrorDialNumberAlert)
            errorAlert.open()
        else
            errorAlert.close()
    }

    // A keyboard works as well: digits, * and #, Backspace, Enter to call.
    Keys.onPressed: (event) => {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            vm.deleteLast()
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            call()
            event.accepted = true
        } else if (event.text.length === 1 && "0123456789*#".indexOf(event.text) >= 0) {
            vm.appendDigit(event.text)
            event.accepted = true
        }
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.leftMargin: 24
        anchors.rightMargin: 24
        anchors.topMargin: 12
        anchors.bottomMargin: 12
        spacing: 0

        // 1. The number, read-only: the keypad is the way to type.
        Label {
            id: numberDisplay
            objectName: "numberDisplay"
            Layout.fillWidth: true
            Layout.preferredHeight: 76
            text: dialerView.vm.numberPhoneTyping
            font.bold: true
            font.pixelSize: 40
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 20
            elide: Text.ElideLeft
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            color: "#1C1C1E"
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }

        Item { Layout.fillHeight: true; Layout.minimumHeight: 4 }

        // 2. The keypad.
        GridLayout {
            id: keypad
            objectName: "keypad"
            Layout.alignment: Qt.AlignHCenter
            columns: 3
            rowSpacing: Math.round(dialerView.keySize * 0.2)
            columnSpacing: Math.round(dialerView.keySize * 0.4)

            Repeater {
                model: [
                    { key: "1", spoken: "1" }, { key: "2", spoken: "2" }, { key: "3", spoken: "3" },
                    { key: "4", spoken: "4" }, { key: "5", spoken: "5" }, { key: "6", spoken: "6" },
                    { key: "7", spoken: "7" }, { key: "8", spoken: "8" }, { key: "9", spoken: "9" },
                    { key: "*", spoken: qsTr("asterisk") }, { key: "0", spoken: "0" }, { key: "#", spoken: qsTr("pound") }
                ]
                delegate: KeypadKey {
                    required property var modelData
                    caption: modelData.key
                    diameter: dialerView.keySize
                    objectName: "key" + modelData.key
                    Accessible.name: modelData.spoken
                    onClicked: dialerView.vm.appendDigit(caption)
                }
            }

            // 3. Delete, under the # key: a tap removes the last character,
            // holding it for a second clears the number.
            Item { Layout.preferredWidth: dialerView.keySize; Layout.preferredHeight: 44 }
            Item { Layout.preferredWidth: dialerView.keySize; Layout.preferredHeight: 44 }
            AbstractButton {
                id: deleteKey
                objectName: "deleteKey"
                Layout.preferredWidth: dialerView.keySize
                Layout.preferredHeight: 44
                focusPolicy: Qt.NoFocus
                opacity: dialerView.vm.numberPhoneTyping.length > 0 ? 1 : 0.35
                Accessible.role: Accessible.Button
                Accessible.name: qsTr("Delete")
                Accessible.description: qsTr("Hold to clear the number")

                property point pressPoint
                readonly property int longPressMs: 1000
                readonly property real maximumMovement: 10

                contentItem: Item {
                    IconImage {
                        anchors.centerIn: parent
                        source: "qrc:/Quieton/icons/delete.left.svg"
                        sourceSize.width: 30
                        sourceSize.height: 30
                        color: deleteKey.pressed ? "#8E8E93" : "#3A3A3C"
                    }
                }
                background: null

                onPressed: {
                    pressPoint = Qt.point(pressX, pressY)
                    holdTimer.restart()
                }
                onPressXChanged: checkMovement()
                onPressYChanged: checkMovement()
                onReleased: holdTimer.stop()
                onCanceled: holdTimer.stop()
                onClicked: dialerView.vm.deleteLast()

                function checkMovement() {
                    if (!pressed)
                        return
                    const dx = pressX - pressPoint.x
                    const dy = pressY - pressPoint.y
                    if (Math.sqrt(dx * dx + dy * dy) > maximumMovement)
                        holdTimer.stop()
                }

                Timer {
                    id: holdTimer
                    interval: deleteKey.longPressMs
                    onTriggered: dialerView.vm.clear()
                }
            }
        }

        Item { Layout.fillHeight: true; Layout.minimumHeight: 4 }

        // 4. The per-call choices.
        Divider { }
        ChoiceRow {
            objectName: "hiddenNumberRow"
            caption: qsTr("Hidden Number")
            checked: dialerView.vm.toggleHiddenNumber
            onToggled: (on) => { dialerView.vm.toggleHiddenNumber = on }
        }
        Divider { }
        ChoiceRow {
            objectName: "saveToHistoryRow"
            caption: qsTr("Save to History")
            checked: dialerView.vm.toggleSaveToHistory
            onToggled: (on) => { dialerView.vm.toggleSaveToHistory = on }
        }
        Divider { }

        Item { Layout.fillHeight: true; Layout.minimumHeight: 4 }

        // 5. Call.
        AbstractButton {
            id: callButton
            objectName: "callButton"
            Layout.alignment: Qt.AlignHCenter
            Layout.preferredWidth: 88
            Layout.preferredHeight: 88
            enabled: dialerView.vm.numberPhoneTyping.length > 0
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Call")
            readonly property color tint: enabled ? dialerView.callGreen : dialerView.inactiveGrey

            contentItem: Item {
                // The symbol's handset is cut out of the disc: white shows through.
                Rectangle {
                    anchors.centerIn: parent
                    width: 62; height: 62; radius: 31
                    color: "white"
                }
                IconImage {
                    anchors.centerIn: parent
                    source: "qrc:/Quieton/icons/phone.circle.fill.svg"
                    sourceSize.width: 80
                    sourceSize.height: 80
                    color: callButton.tint
                    scale: callButton.pressed ? 0.92 : 1
                    Behavior on scale { NumberAnimation { duration: 90 } }
                }
            }
            background: null
            onClicked: dialerView.call()
        }
    }

    // 6. The shared dialling-error alert.
    DialErrorAlert {
        id: errorAlert
        objectName: "dialErrorAlert"
        service: dialerView.service
        onClosed: dialerView.showingErrorDialNumberAlert = false
    }

    // One round keypad key.
    component KeypadKey: AbstractButton {
        id: key
        property string caption
        property real diameter: 72
        Layout.preferredWidth: diameter
        Layout.preferredHeight: diameter
        focusPolicy: Qt.NoFocus
        Accessible.role: Accessible.Button
        background: Rectangle {
            radius: width / 2
            color: key.pressed ? "#D1D1D6" : "#F2F2F7"
            Behavior on color { ColorAnimation { duration: 80 } }
        }
        contentItem: Text {
            text: key.caption
            font.pixelSize: Math.round(key.diameter * (key.caption === "*" ? 0.55 : 0.42))
            font.weight: Font.Normal
            color: "#1C1C1E"
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            // The asterisk sits high in most fonts.
            topPadding: key.caption === "*" ? Math.round(key.diameter * 0.14) : 0
        }
    }

    component Divider: Rectangle {
        Layout.fillWidth: true
        Layout.preferredHeight: 1
        color: "#E5E5EA"
    }

    component ChoiceRow: RowLayout {
        id: row
        property string caption
        property bool checked
        signal toggled(bool on)
        Layout.fillWidth: true
        Layout.preferredHeight: 52
        spacing: 12

        Label {
            Layout.fillWidth: true
            text: row.caption
            font.pixelSize: 17
            font.weight: Font.DemiBold
            color: "#1C1C1E"
        }
        Switch {
            objectName: "switch"
            checked: row.checked
            focusPolicy: Qt.NoFocus
            Accessible.name: row.caption
            onToggled: row.toggled(checked)
        }
    }
}
