import QtQuick
import QtQuick.Controls
import Quieton.Core
import Quieton.Popup

// One content item above the whole window: a floating card, a toast or a
// full-screen page, sliding in from `appearFrom`. It is shown exactly while
// `isPresented` is true; however it goes away by itself it lowers
// `isPresented` without cutting the owner's binding, so the owner copies it
// back in `onIsPresentedChanged`. `dismissed(source)` tells why (a
// PopupLayout.DismissSource). A drag towards its edge past a third of its
// size dismisses it; the geometry is PopupLayout's.
Popup {
    id: popupView

    property bool isPresented: false
    property int type: PopupLayout.Floating
    property int position: PopupLayout.Center
    property int appearFrom: PopupLayout.FromBottom
    // Milliseconds on screen before it goes by itself; 0 keeps it up.
    property int autohideIn: 0
    property bool closeOnTap: false
    property bool closeOnTapOutside: true
    // Full-screen content usually scrolls and has its own back control.
    property bool dragToDismiss: popupView.type !== PopupLayout.FullScreen
    property real margin: Theme.spacingLarge
    property color color: Theme.surface
    property real contentMargin: popupView.type === PopupLayout.FullScreen ? 0 : Theme.spacingLarge
    property string accessibleName: ""

    // True from the moment it starts sliding in until it has slid out.
    readonly property bool shown: popupView.visible
    readonly property Item card: popupView.background
    // How far the popup is from its resting place: sliding in or out, dragged.
    property real offsetX: 0
    property real offsetY: 0

    signal dismissed(int source)

    function dismiss(source) {
        if (!popupView.isPresented)
            return
        popupView.pendingSource = source
        popupView.close()
    }

    // Why the popup is closing, when it closes itself; -1 until it does.
    property int pendingSource: -1
    // Set for the moment after a touch on the window outside the popup.
    property bool releasedOutside: false
    // Raised for an instant to lower `isPresented` over the owner's binding.
    property bool lowering: false

    parent: Overlay.overlay
    visible: popupView.isPresented
    modal: popupView.type !== PopupLayout.Toast
    dim: popupView.type === PopupLayout.Floating
    // A toast leaves the keyboard to the window.
    focus: popupView.type !== PopupLayout.Toast
    closePolicy: popupView.closeOnTapOutside && popupView.type !== PopupLayout.FullScreen
                 ? Popup.CloseOnEscape | Popup.CloseOnReleaseOutside : Popup.CloseOnEscape
    padding: 0
    x: layout.restingX + popupView.offsetX
    y: layout.restingY + popupView.offsetY
    width: layout.popupWidth
    height: layout.popupHeight
    Overlay.modal: Rectangle { color: Theme.scrim }

    Binding {
        target: popupView
        property: "isPresented"
        when: popupView.lowering
        value: false
        restoreMode: Binding.RestoreBinding
    }

    // A screen reader meets the popup as a dialog of this name.
    Binding {
        target: popupView.contentItem ? popupView.contentItem.parent : null
        property: "Accessible.name"
        value: popupView.accessibleName
    }

    Overlay.onReleased: {
        popupView.releasedOutside = true
        forgetRelease.restart()
    }
    Timer {
        id: forgetRelease
        interval: 0
        onTriggered: popupView.releasedOutside = false
    }

    onAboutToHide: {
        let source = PopupLayout.Binding
        if (popupView.isPresented) {
            // Closed by itself: by dismiss(), or by the close policy.
            if (popupView.pendingSource >= 0)
                source = popupView.pendingSource
            else
                source = popupView.releasedOutside ? PopupLayout.TapOutside : PopupLayout.Escape
            popupView.lowering = true
            popupView.lowering = false
        }
        popupView.pendingSource = -1
        settleAnimation.stop()
        popupView.dismissed(source)
    }

    // Fills the card within its margin; its implicit size is what it would like.
    readonly property Item content: {
        for (let i = 0; i < popupView.contentChildren.length; ++i) {
            if (popupView.contentChildren[i] !== touchArea)
                return popupView.contentChildren[i]
        }
        return null
    }
    onContentChanged: {
        if (!popupView.content)
            return
        popupView.content.anchors.fill = popupView.contentItem
        popupView.content.anchors.margins = Qt.binding(() => popupView.contentMargin)
    }

    PopupLayout {
        id: layout
        type: popupView.type
        position: popupView.position
        appearFrom: popupView.appearFrom
        margin: popupView.margin
        mirrored: Application.layoutDirection === Qt.RightToLeft
        containerWidth: popupView.parent ? popupView.parent.width : 0
        containerHeight: popupView.parent ? popupView.parent.height : 0
        contentWidth: popupView.content ? popupView.content.implicitWidth + 2 * popupView.contentMargin : 0
        contentHeight: popupView.content ? popupView.content.implicitHeight + 2 * popupView.contentMargin : 0
    }

    background: Rectangle {
        objectName: "popupCard"
        // The card is where the popup is: 0 and 0 once it rests.
        readonly property real offsetX: popupView.offsetX
        readonly property real offsetY: popupView.offsetY
        radius: popupView.type === PopupLayout.FullScreen ? 0 : Theme.radius * 1.6
        color: popupView.color
        // On a dark window a card needs an edge to stand out.
        border.color: Theme.separator
        border.width: Theme.dark && popupView.type !== PopupLayout.FullScreen ? 1 : 0
    }

    // Touches on the card that no control inside takes.
    Item {
        id: touchArea
        anchors.fill: parent
        TapHandler {
            enabled: popupView.closeOnTap
            onTapped: popupView.dismiss(PopupLayout.TapInside)
        }

        DragHandler {
            id: dragHandler
            target: null
            enabled: popupView.dragToDismiss && popupView.opened
            xAxis.enabled: popupView.appearFrom === PopupLayout.FromLeading
                           || popupView.appearFrom === PopupLayout.FromTrailing
            yAxis.enabled: popupView.appearFrom === PopupLayout.FromTop
                           || popupView.appearFrom === PopupLayout.FromBottom
            property point lastTranslation: Qt.point(0, 0)

            onTranslationChanged: {
                if (!dragHandler.active)
                    return
                const t = dragHandler.translation
                dragHandler.lastTranslation = Qt.point(t.x, t.y)
                popupView.offsetX = layout.dragOffsetX(t.x, t.y)
                popupView.offsetY = layout.dragOffsetY(t.x, t.y)
            }
            onActiveChanged: {
                if (dragHandler.active) {
                    settleAnimation.stop()
                    dragHandler.lastTranslation = Qt.point(0, 0)
                } else if (layout.dragDismisses(dragHandler.lastTranslation.x, dragHandler.lastTranslation.y)) {
                    popupView.dismiss(PopupLayout.Drag)
                } else {
                    settleAnimation.restart()
                }
            }
        }
    }

    enter: Transition {
        NumberAnimation { property: "offsetX"; from: layout.entryOffsetX; to: 0; duration: 320; easing.type: Easing.OutBack; easing.overshoot: 0.9 }
        NumberAnimation { property: "offsetY"; from: layout.entryOffsetY; to: 0; duration: 320; easing.type: Easing.OutBack; easing.overshoot: 0.9 }
    }
    exit: Transition {
        NumberAnimation { property: "offsetX"; to: layout.entryOffsetX; duration: 220; easing.type: Easing.InCubic }
        NumberAnimation { property: "offsetY"; to: layout.entryOffsetY; duration: 220; easing.type: Easing.InCubic }
    }

    // Back to rest after a drag that did not go far enough.
    ParallelAnimation {
        id: settleAnimation
        SpringAnimation { target: popupView; property: "offsetX"; to: 0; spring: 5; damping: 0.35; epsilon: 0.25 }
        SpringAnimation { target: popupView; property: "offsetY"; to: 0; spring: 5; damping: 0.35; epsilon: 0.25 }
    }

    Timer {
        interval: Math.max(1, popupView.autohideIn)
        running: popupView.autohideIn > 0 && popupView.opened && !dragHandler.active
        onTriggered: popupView.dismiss(PopupLayout.Autohide)
    }

    // The Back key closes it as Escape does.
    Shortcut {
        sequence: "Back"
        enabled: popupView.opened
        onActivated: popupView.dismiss(PopupLayout.Escape)
    }
}
