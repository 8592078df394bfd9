import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Popup
import Quieton.Settings

// The manual prefix editor of the settings screen, floating over it: the
// typed text, the rule shown when "OK" was refused, and the carrier notice.
PopupView {
    id: editor
    objectName: "prefixEditor"
    property string text: ""
    property bool showsRule: false
    property real maxWidth: 380
    property real maxHeight: 400
    property color ruleColor: "#FF3B30"
    property color noticeColor: "#6C6C70"
    signal edited(string text)
    signal accepted()
    signal cancelled()

    type: PopupLayout.Floating
    position: PopupLayout.Center
    appearFrom: PopupLayout.FromBottom
    onIsPresentedChanged: {
        if (isPresented)
            prefixField.forceActiveFocus()
    }

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
            spacing: 12

            TextField {
                id: prefixField
                objectName: "prefixField"
                Layout.fillWidth: true
                placeholderText: qsTr("Enter your Prefix")
                Accessible.name: placeholderText
                text: editor.text
                onTextEdited: editor.edited(text)
                inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText | Qt.ImhPreferNumbers
                onAccepted: editor.accepted()
            }
            Label {
                objectName: "prefixRuleText"
                visible: editor.showsRule
                Layout.fillWidth: true
                text: qsTr("Prefix Cannot Be Empty needs at least 2 characters and without spaces")
                color: editor.ruleColor
                wrapMode: Text.Wrap
            }
            Label {
                Layout.fillWidth: true
                text: qsTr("Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.")
                color: editor.noticeColor
                font.pixelSize: 13
                wrapMode: Text.Wrap
            }
            RowLayout {
                Layout.fillWidth: true
                spacing: 12
                Button {
                    objectName: "prefixOkButton"
                    text: qsTr("OK")
                    font.capitalization: Font.MixedCase
                    highlighted: true
                    Layout.fillWidth: true
                    onClicked: editor.accepted()
                }
                Button {
                    objectName: "prefixCancelButton"
                    text: qsTr("Cancel")
                    font.capitalization: Font.MixedCase
                    Layout.fillWidth: true
                    onClicked: editor.cancelled()
                }
            }
        }
    }
}
