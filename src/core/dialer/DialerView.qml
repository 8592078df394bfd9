pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// The dialler tab: the typed number, a telephone keypad, the two per-call
// choices and the call button. In landscape the keypad stands beside the rest.
Page {
    id: dialerView
    objectName: "dialerView"

    required property DialerViewModel vm
    readonly property Service service: vm.service
    property bool showingErrorDialNumberAlert: false

    readonly property bool landscape: width > height
    // The keys grow with the text size; in landscape they shrink to the
    // screen's height (never below a finger), in portrait the page scrolls.
    readonly property int category: Theme.sizeCategory === ContentSizeCategory.Unspecified ? ContentSizeCategory.Large : Theme.sizeCategory
    readonly property real preferredKeySize: Math.min(88, 64 + 4 * Math.max(0, category - ContentSizeCategory.Large))
    readonly property real keySpacing: landscape ? Theme.spacingSmall : Theme.spacingLarge
    readonly property real keySize: Math.max(Theme.touchTarget, Math.min(preferredKeySize,
        (width / (landscape ? 2 : 1) - 2 * Theme.spacingLarge - 2 * keySpacing) / 3,
        landscape ? (height - 2 * Theme.spacingSmall - 4 * keySpacing - deleteKey.implicitHeight) / 4 : preferredKeySize))

    Accessible.role: Accessible.PageTab
    Accessible.name: qsTranslate("MainView", "Dialer")
    focus: true

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

    // Escape clears the number as holding the delete key does.
    Keys.onPressed: (event) => {
        if (event.modifiers & (Qt.ControlModifier | Qt.AltModifier | Qt.MetaModifier))
            return
        if (event.key === Qt.Key_Backspace || event.key === Qt.Key_Delete) {
            vm.deleteLast()
            event.accepted = true
        } else if (event.key === Qt.Key_Escape && vm.numberPhoneTyping.length > 0) {
            vm.clear()
            event.accepted = true
        } else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter) {
            call()
            event.accepted = true
        } else if (event.text.length === 1 && "0123456789*#".indexOf(event.text) >= 0) {
            vm.appendDigit(event.text)
            event.accepted = true
        }
    }

    // In landscape the keypad stands beside the scrolling column.
    RowLayout {
        anchors.fill: parent
        spacing: 0

        Flickable {
            id: scroller
            Layout.fillWidth: true
            Layout.fillHeight: true
            contentWidth: width
            contentHeight: content.height
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }

            ColumnLayout {
                id: content
                width: scroller.width
                height: Math.max(scroller.height, implicitHeight)
                spacing: Theme.spacing

                Label {
                    id: numberDisplay
                    objectName: "numberDisplay"
                    Layout.fillWidth: true
                    Layout.fillHeight: true
                    Layout.margins: Theme.spacingLarge
                    Layout.bottomMargin: 0
                    text: dialerView.vm.numberPhoneTyping
                    font.bold: true
                    font.pointSize: Theme.largeTitleSize
                    wrapMode: Text.WrapAnywhere
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignVCenter
                    Layout.minimumHeight: Math.max(fontMetrics.height, implicitHeight)
                    FontMetrics { id: fontMetrics; font: numberDisplay.font }
                    Accessible.role: Accessible.StaticText
                    Accessible.name: text
                    Accessible.ignored: text.length === 0
                }

                Item {
                    id: inlineKeypadSlot
                    visible: !dialerView.landscape
                    Layout.fillWidth: true
                    Layout.preferredHeight: keypad.implicitHeight
                }

                ColumnLayout {
                    Layout.fillWidth: true
                    Layout.leftMargin: Theme.spacingLarge
                    Layout.rightMargin: Theme.spacingLarge
                    Layout.bottomMargin: Theme.spacingSmall
                    Layout.minimumHeight: implicitHeight
                    spacing: 0

                    Divider { }
                    ChoiceSwitch {
                        objectName: "hiddenNumberRow"
                        text: qsTr("Hidden Number")
                        checked: dialerView.vm.toggleHiddenNumber
                        onToggled: dialerView.vm.toggleHiddenNumber = checked
                    }
                    Divider { }
                    ChoiceSwitch {
                        objectName: "saveToHistoryRow"
                        text: qsTr("Save to History")
                        checked: dialerView.vm.toggleSaveToHistory
                        onToggled: dialerView.vm.toggleSaveToHistory = checked
                    }
                    Divider { }

                    RoundButton {
                        id: callButton
                        objectName: "callButton"
                        Layout.alignment: Qt.AlignHCenter
                        Layout.topMargin: Theme.spacingSmall
                        enabled: dialerView.vm.numberPhoneTyping.length > 0
                        focusPolicy: Qt.NoFocus
                        padding: 0
                        flat: true
                        icon.source: "qrc:/Quieton/icons/phone.circle.fill.svg"
                        icon.width: 80
                        icon.height: 80
                        icon.color: enabled ? Theme.call : Theme.separator
                        display: AbstractButton.IconOnly
                        scale: pressed ? 0.92 : 1
                        Behavior on scale { NumberAnimation { duration: 90 } }
                        Accessible.name: qsTr("Call")
                        Accessible.onPressAction: clicked()
                        // The symbol's handset is cut out of the disc: this shows through.
                        background: Rectangle {
                            implicitWidth: 80
                            implicitHeight: 80
                            radius: width / 2
                            color: Theme.textOnAccent
                            scale: 0.75
                        }
                        onClicked: dialerView.call()
                    }
                }
            }
        }

        Item {
            id: sideKeypadSlot
            visible: dialerView.landscape
            Layout.fillHeight: true
            Layout.preferredWidth: dialerView.width / 2
        }
    }

    GridLayout {
        id: keypad
        objectName: "keypad"
        parent: dialerView.landscape ? sideKeypadSlot : inlineKeypadSlot
        anchors.centerIn: parent
        columns: 3
        rowSpacing: dialerView.keySpacing
        columnSpacing: dialerView.keySpacing

        Repeater {
            model: [
                { key: "1", spoken: "1" }, { key: "2", spoken: "2" }, { key: "3", spoken: "3" },
                { key: "4", spoken: "4" }, { key: "5", spoken: "5" }, { key: "6", spoken: "6" },
                { key: "7", spoken: "7" }, { key: "8", spoken: "8" }, { key: "9", spoken: "9" },
                { key: "*", spoken: qsTr("asterisk") }, { key: "0", spoken: "0" }, { key: "#", spoken: qsTr("pound") }
            ]
            delegate: KeypadKey {
                required property var modelData
                objectName: "key" + modelData.key
                text: modelData.key
                diameter: dialerView.keySize
                Accessible.name: modelData.spoken
                onClicked: dialerView.vm.appendDigit(text)
            }
        }

        // A tap removes the last character; held for a second
        // (moving at most 10 points) it clears the number.
        Item { Layout.columnSpan: 2; Layout.fillWidth: true; Accessible.ignored: true }
        ToolButton {
            id: deleteKey
            objectName: "deleteKey"
            Layout.alignment: Qt.AlignHCenter
            focusPolicy: Qt.NoFocus
            icon.source: "qrc:/Quieton/icons/delete.left.svg"
            icon.width: Theme.iconSize * 1.5
            icon.height: Theme.iconSize * 1.5
            icon.color: pressed ? Theme.secondaryText : Theme.text
            opacity: dialerView.vm.numberPhoneTyping.length > 0 ? 1 : 0.35
            Accessible.name: qsTr("Delete")
            Accessible.description: qsTr("Hold to clear the number, or press Escape")
            Accessible.onPressAction: clicked()

            property point pressPoint
            readonly property int longPressMs: 1000
            readonly property real maximumMovement: 10

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

    PopupOnDemand {
        asked: dialerView.showingErrorDialNumberAlert
        content: Item {
            DialErrorAlert {
                objectName: "dialErrorAlert"
                service: dialerView.service
                visible: dialerView.showingErrorDialNumberAlert
                onClosed: dialerView.showingErrorDialNumberAlert = false
            }
        }
    }

    component KeypadKey: RoundButton {
        id: key
        property real diameter: Theme.touchTarget
        Layout.preferredWidth: diameter
        Layout.preferredHeight: diameter
        focusPolicy: Qt.NoFocus
        padding: 0
        Accessible.onPressAction: key.clicked()
        background: Rectangle {
            radius: width / 2
            color: key.pressed ? Theme.pressed : Theme.raised
            Behavior on color { ColorAnimation { duration: 80 } }
        }
        contentItem: Label {
            text: key.text
            font.pointSize: Theme.titleSize * 1.4
            fontSizeMode: Text.Fit
            minimumPointSize: Theme.footnoteSize
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            // The asterisk sits high in most fonts.
            topPadding: key.text === "*" ? key.diameter * 0.14 : 0
            Accessible.ignored: true
        }
    }

    component Divider: Rectangle {
        Layout.fillWidth: true
        implicitHeight: 1
        color: Theme.separator
    }

    component ChoiceSwitch: SwitchDelegate {
        id: choice
        Layout.fillWidth: true
        leftPadding: 0
        rightPadding: 0
        focusPolicy: Qt.NoFocus
        font.pointSize: Theme.headlineSize
        font.bold: true
        Accessible.name: text
        Accessible.onPressAction: choice.toggleByReader()
        Accessible.onToggleAction: choice.toggleByReader()
        background: null
        contentItem: Label {
            text: choice.text
            font: choice.font
            wrapMode: Text.Wrap
            rightPadding: choice.indicator.width + choice.spacing
            verticalAlignment: Text.AlignVCenter
            Accessible.ignored: true
        }

        function toggleByReader() {
            toggle()
            toggled()
        }
    }
}
