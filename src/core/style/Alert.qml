import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import QtQuick.Layouts
import QtQuick.Templates as T
import Quieton.Core

// The app's one alert: modal, centred over the window, a bold title, an
// optional message and its answers, plain Buttons that close it after their
// own handler ran. Answers sit side by side while two fit. An alert may bring
// its own footer (a Container of Buttons); its buttons are treated the same.
Dialog {
    id: alert

    property string message: ""
    property bool stacked: false
    default property alias buttons: answers.contentData
    // Drawn bold, and what Escape and Back do; without one the alert stays
    // up until it is answered.
    property T.AbstractButton cancelButton: null
    // Drawn red.
    property T.AbstractButton destructiveButton: null

    // Further content under the message, scrolled with it (a list of choices).
    property alias body: extra.data

    parent: Overlay.overlay
    anchors.centerIn: parent
    // At the accessibility text sizes as wide as the window allows.
    width: Math.max(240, Math.min(parent ? parent.width - 2 * Theme.spacingHuge : 320,
                                  Theme.sizeCategory >= ContentSizeCategory.AccessibilityMedium && parent ? parent.width * 0.8 : 360))
    // Taller content scrolls; the answers stay in sight.
    height: Math.min(alert.implicitHeight, parent ? parent.height - 2 * Theme.spacingLarge : alert.implicitHeight)
    modal: true
    focus: true
    closePolicy: alert.cancelButton ? Popup.CloseOnEscape : Popup.NoAutoClose
    padding: 0
    header: null // the title scrolls with the content
    Material.background: Theme.surface
    Overlay.modal: Rectangle { color: Theme.scrim }

    Binding {
        target: alert.contentItem ? alert.contentItem.parent : null
        property: "Accessible.name"
        value: alert.title
    }

    contentItem: alert.scroller
    // Made with the alert: ids inside a deferred contentItem would not be.
    readonly property Flickable scroller: Flickable {
        id: scroller
        implicitWidth: column.implicitWidth
        implicitHeight: column.implicitHeight
        contentHeight: column.implicitHeight
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { active: scroller.contentHeight > scroller.height }

        ColumnLayout {
            id: column
            width: scroller.width
            spacing: Theme.spacingSmall
            Label {
                Layout.fillWidth: true
                Layout.margins: Theme.spacingHuge
                Layout.bottomMargin: 0
                text: alert.title
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                font.bold: true
                font.pointSize: Theme.headlineSize
                Accessible.ignored: true // the alert itself is named by it
            }
            Label {
                Layout.fillWidth: true
                Layout.leftMargin: Theme.spacingHuge
                Layout.rightMargin: Theme.spacingHuge
                text: alert.message
                visible: alert.message.length > 0
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: Theme.secondaryText
                font.pointSize: Theme.bodySize
            }
            ColumnLayout {
                id: extra
                Layout.fillWidth: true
                Layout.leftMargin: Theme.spacingSmall
                Layout.rightMargin: Theme.spacingSmall
                spacing: Theme.spacingSmall
                visible: extra.children.length > 0
            }
        }
    }

    footer: Container {
        id: answers
        // Side by side only while at most two visible answers fit at their own width.
        readonly property bool sideBySide: {
            let needed = 0
            let shown = 0
            for (let i = 0; i < answers.count; ++i) {
                const button = answers.itemAt(i)
                if (button && button.visible) {
                    needed += button.implicitWidth
                    shown += 1
                }
            }
            return !alert.stacked && shown <= 2 && needed + Theme.spacingSmall * (shown - 1) <= answers.availableWidth
        }
        padding: Theme.spacingSmall
        contentItem: GridLayout {
            columns: answers.sideBySide ? Math.max(1, answers.count) : 1
            columnSpacing: Theme.spacingSmall
            rowSpacing: 0
            Repeater { model: answers.contentModel }
        }
    }

    onRejected: {
        if (alert.cancelButton)
            alert.cancelButton.clicked()
    }
    Shortcut {
        sequence: "Back"
        enabled: alert.opened && alert.cancelButton !== null
        onActivated: alert.reject()
    }
    // Each answer, once: its look, its screen reader name and press, and
    // closing the alert after its own handler.
    property var styled: []
    function styleAnswers() {
        const box = alert.footer
        for (let i = 0; box && box.itemAt && i < box.count; ++i) {
            const button = box.itemAt(i)
            if (!button || button.clicked === undefined || alert.styled.indexOf(button) >= 0)
                continue
            alert.styled.push(button)
            button.flat = button.flat || !button.highlighted
            button.font.capitalization = Font.MixedCase
            button.font.bold = button === alert.cancelButton
            button.font.pointSize = Theme.bodySize
            button.Material.foreground = button === alert.destructiveButton ? Theme.destructive : Theme.link
            button.Layout.fillWidth = true
            if (!button.Accessible.name)
                button.Accessible.name = Qt.binding(() => button.text)
            button.Accessible.pressAction.connect(button.clicked)
            button.clicked.connect(alert.close)
        }
    }
    Component.onCompleted: alert.styleAnswers()
    onFooterChanged: alert.styleAnswers()
    Connections {
        target: alert.footer
        ignoreUnknownSignals: true
        function onContentChildrenChanged() { alert.styleAnswers() }
    }
}
