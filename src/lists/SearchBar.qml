import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// The search field of the contacts and history lists: a magnifying glass in
// the field and, while the field is being edited, a button that ends the
// search. The screen decides what the text and the button do.
RowLayout {
    id: bar

    required property string text
    property string cancelName: "cancelSearchButton"
    readonly property bool editing: field.activeFocus

    signal edited(string text)
    signal cancelled()

    // Ends the editing: the keyboard goes, nothing in the bar keeps the focus.
    function release() {
        field.focus = false
    }

    spacing: Theme.spacingSmall

    TextField {
        id: field
        objectName: "searchField"
        Layout.fillWidth: true
        text: bar.text
        placeholderText: qsTr("Search")
        font.pointSize: Theme.bodySize
        leftPadding: glass.width + Theme.spacingSmall
        rightPadding: Theme.spacingSmall
        inputMethodHints: Qt.ImhNoPredictiveText
        Accessible.name: qsTr("Search")
        Accessible.searchEdit: true
        onTextEdited: bar.edited(field.text)
        background: Rectangle {
            color: Theme.raised
            radius: Theme.radius
        }

        // Drawn in the field; a tap on it edits the field, as a screen
        // reader's press on it does.
        ToolButton {
            id: glass
            objectName: "searchGlass"
            anchors.verticalCenter: parent.verticalCenter
            height: parent.height
            width: Theme.iconSize + Theme.spacingSmall * 2
            icon.source: "qrc:/Quieton/icons/magnifyingglass.svg"
            icon.color: Theme.tertiaryText
            icon.width: Theme.iconSize
            icon.height: Theme.iconSize
            background: null
            focusPolicy: Qt.NoFocus
            Accessible.name: qsTr("Search")
            Accessible.ignored: true
            Accessible.onPressAction: field.forceActiveFocus()
            onClicked: field.forceActiveFocus()
        }
    }

    Button {
        objectName: bar.cancelName
        visible: bar.editing
        text: qsTr("Cancel")
        flat: true
        font.capitalization: Font.MixedCase
        font.pointSize: Theme.bodySize
        focusPolicy: Qt.NoFocus
        Accessible.name: text
        Accessible.onPressAction: bar.cancelled()
        onClicked: bar.cancelled()
    }
}
