import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Popup
import Quieton.Settings

// The manual prefix editor. Escape, Back, a tap outside and a drag only
// lower the owner's flag; "Cancel" is the owner's to handle.
PopupView {
    id: editor
    objectName: "prefixEditor"
    property string text: ""
    property bool showsRule: false
    property real maxWidth: 380
    property real maxHeight: 400
    signal edited(string text)
    signal accepted()
    signal cancelled()

    accessibleName: qsTr("Edit Manually")
    onOpened: prefixField.forceActiveFocus()

    Flickable {
        id: editorScroll
        implicitWidth: Math.min(editor.maxWidth, 380)
        implicitHeight: Math.min(editorColumn.implicitHeight, editor.maxHeight)
        contentHeight: editorColumn.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: editorColumn
            width: editorScroll.width
            spacing: Theme.spacing

            TextField {
                id: prefixField
                objectName: "prefixField"
                Layout.fillWidth: true
                placeholderText: qsTr("Enter your Prefix")
                Accessible.name: prefixField.placeholderText
                text: editor.text
                font.pointSize: Theme.bodySize
                onTextEdited: editor.edited(prefixField.text)
                inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText | Qt.ImhPreferNumbers
                onAccepted: editor.accepted()
            }
            Label {
                objectName: "prefixRuleText"
                visible: editor.showsRule
                Layout.fillWidth: true
                text: qsTr("Prefix Cannot Be Empty needs at least 2 characters and without spaces")
                color: Theme.destructive
                font.pointSize: Theme.bodySize
                wrapMode: Text.Wrap
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.")
                color: Theme.secondaryText
                font.pointSize: Theme.footnoteSize
                wrapMode: Text.Wrap
            }
            // Side by side while both fit, one under the other at large text.
            GridLayout {
                Layout.fillWidth: true
                columns: okButton.implicitWidth + cancelButton.implicitWidth + Theme.spacing <= editorColumn.width ? 2 : 1
                columnSpacing: Theme.spacing
                Button {
                    id: okButton
                    objectName: "prefixOkButton"
                    text: qsTr("OK")
                    font.capitalization: Font.MixedCase
                    font.pointSize: Theme.bodySize
                    highlighted: true
                    Layout.fillWidth: true
                    Accessible.name: okButton.text
                    Accessible.onPressAction: okButton.clicked()
                    onClicked: editor.accepted()
                }
                Button {
                    id: cancelButton
                    objectName: "prefixCancelButton"
                    text: qsTr("Cancel")
                    font.capitalization: Font.MixedCase
                    font.pointSize: Theme.bodySize
                    Layout.fillWidth: true
                    Accessible.name: cancelButton.text
                    Accessible.onPressAction: cancelButton.clicked()
                    onClicked: editor.cancelled()
                }
            }
        }
    }
}
