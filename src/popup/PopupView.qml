import QtQuick
import Quieton.Popup

// Shows one content item above the whole window, as a floating card, a toast
// or a full-screen page, sliding in from one edge of the window.
//
//   PopupView {
//       isPresented: owner.showingSomething
//       onIsPresentedChanged: owner.showingSomething = isPresented
//       type: PopupLayout.Floating          // or PopupLayout.Toast, PopupLayout.FullScreen
//       position: PopupLayout.Center        // TopLeading, Top, TopTrailing, Leading, Center,
//                                           // Trailing, BottomLeading, Bottom, BottomTrailing
//       appearFrom: PopupLayout.FromBottom  // FromTop, FromBottom, FromLeading, FromTrailing
//       ColumnLayout { ... }
//   }
//
// The enums live in PopupLayout, which holds the geometry. `dismissed(source)`
// tells why it went away: PopupLayout.Binding (the owner lowered the flag),
// TapInside, TapOutside, Drag or Autohide. Whatever the way, the popup lowers
// `isPresented` itself, without cutting the owner's binding, so an owner that
// follows `isPresentedChanged` back into its flag can present it again.
//
// Floating popups and toasts take their content's implicit size (toasts span
// the width); a full-screen popup makes its content fill the window. A
// floating popup dims the window and keeps it from touches; beside a toast
// the window stays usable. Dragging the popup towards its edge by more than a
// third of its own size dismisses it; a shorter drag springs back. Touches
// that controls inside take (buttons, text fields) stay theirs.
//
// Defaults: not presented, floating, centred, from the bottom, no autohide,
// tap inside off, tap outside on, drag on (off for full-screen popups).
Item {
    id: popupView

    property bool isPresented: false
    property int type: PopupLayout.Floating
    property int position: PopupLayout.Center
    property int appearFrom: PopupLayout.FromBottom
    // Milliseconds on screen before it goes by itself; 0 keeps it up.
    property int autohideIn: 0
    property bool closeOnTap: false
    property bool closeOnTapOutside: true
    // Off by default for full-screen popups, whose content usually scrolls
    // and which close through their own back control.
    property bool dragToDismiss: popupView.type !== PopupLayout.FullScreen
    // Space kept free around floating popups and toasts.
    property real margin: 16
    property real padding: popupView.type === PopupLayout.FullScreen ? 0 : 20
    property color color: "white"
    // Whether floating popups dim the window behind them.
    property bool dim: true

    default property alias content: contentHolder.data

    // True from the moment it starts sliding in until it has slid out.
    readonly property bool shown: popupLayer.visible
    readonly property Item card: popupCard
    readonly property Item contentItem: contentHolder.children.length > 0 ? contentHolder.children[0] : null

    signal dismissed(int source)

    // Takes the popup away as if by `source` (a PopupLayout.DismissSource).
    function dismiss(source) {
        if (!popupView.isPresented)
            return
        popupView.pendingSource = source
        layout.writeKeepingBinding(popupView, "isPresented", false)
        // An owner that does not bind the flag gets it lowered all the same.
        if (popupView.isPresented)
            popupView.isPresented = false
    }

    // Why the next lowering of the flag happens; the owner's doing unless
    // dismiss() says otherwise.
    property int pendingSource: PopupLayout.Binding

    // The popup is drawn on a layer over the whole window; this item itself
    // takes no space where it is declared.
    visible: false
    width: 0
    height: 0

    onIsPresentedChanged: {
        if (popupView.isPresented)
            popupView.slideIn()
        else
            popupView.slideOut()
    }
    Component.onCompleted: {
        if (popupView.isPresented)
            popupView.slideIn()
    }

    function slideIn() {
        hideAnimation.stop()
        settleAnimation.stop()
        popupView.pendingSource = PopupLayout.Binding
        popupLayer.visible = true
        popupCard.offsetX = layout.entryOffsetX
        popupCard.offsetY = layout.entryOffsetY
        showAnimation.restart()
    }

    function slideOut() {
        const source = popupView.pendingSource
        popupView.pendingSource = PopupLayout.Binding
        if (!popupLayer.visible)
            return
        showAnimation.stop()
        settleAnimation.stop()
        hideAnimation.restart()
        popupView.dismissed(source)
    }

    PopupLayout {
        id: layout
        type: popupView.type
        position: popupView.position
        appearFrom: popupView.appearFrom
        margin: popupView.margin
        mirrored: Application.layoutDirection === Qt.RightToLeft
        containerWidth: popupLayer.width
        containerHeight: popupLayer.height
        contentWidth: popupView.contentItem ? popupView.contentItem.implicitWidth + 2 * popupView.padding : 0
        contentHeight: popupView.contentItem ? popupView.contentItem.implicitHeight + 2 * popupView.padding : 0
    }

    Item {
        id: popupLayer
        objectName: "popupLayer"
        // The window's root item, which is not always sized with the
        // window: take the window's own size.
        parent: popupView.Window.contentItem ? popupView.Window.contentItem : popupView.parent
        x: 0
        y: 0
        width: popupView.Window.window ? popupView.Window.width : (popupLayer.parent ? popupLayer.parent.width : 0)
        height: popupView.Window.window ? popupView.Window.height : (popupLayer.parent ? popupLayer.parent.height : 0)
        visible: false
        z: 1000

        // Behind a floating popup: the dimmed window, which takes every touch.
        Rectangle {
            id: outside
            objectName: "popupOutside"
            anchors.fill: parent
            visible: popupView.type !== PopupLayout.Toast
            color: popupView.type === PopupLayout.Floating && popupView.dim ? "#000000" : "transparent"
            opacity: popupView.type === PopupLayout.Floating && popupView.dim ? 0.35 * popupCard.presence : 1

            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Dismiss")
            Accessible.ignored: !popupView.closeOnTapOutside || popupView.type === PopupLayout.FullScreen
            Accessible.onPressAction: popupView.dismiss(PopupLayout.TapOutside)

            MouseArea {
                id: outsideArea
                anchors.fill: parent
                acceptedButtons: Qt.AllButtons
                hoverEnabled: true
                // Touches on the card's bare parts fall through to here too.
                property bool pressedOnCard: false
                onWheel: (wheel) => { wheel.accepted = true }
                onPressed: (mouse) => {
                    outsideArea.pressedOnCard = popupCard.contains(outsideArea.mapToItem(popupCard, mouse.x, mouse.y))
                }
                onClicked: {
                    if (popupView.closeOnTapOutside && !outsideArea.pressedOnCard)
                        popupView.dismiss(PopupLayout.TapOutside)
                }
            }
        }

        // Beside a toast the window stays usable; a tap there still counts.
        // It only watches, so the control under the finger keeps its tap.
        PointHandler {
            id: outsideWatch
            enabled: popupView.type === PopupLayout.Toast && popupView.closeOnTapOutside
            acceptedButtons: Qt.AllButtons
            property point pressedAt
            property point lastAt
            onPointChanged: {
                if (outsideWatch.active)
                    outsideWatch.lastAt = outsideWatch.point.position
            }
            onActiveChanged: {
                if (outsideWatch.active) {
                    outsideWatch.pressedAt = outsideWatch.point.position
                    outsideWatch.lastAt = outsideWatch.pressedAt
                    return
                }
                const moved = Math.hypot(outsideWatch.lastAt.x - outsideWatch.pressedAt.x,
                                         outsideWatch.lastAt.y - outsideWatch.pressedAt.y)
                const inCard = popupCard.contains(popupCard.mapFromItem(popupLayer, outsideWatch.pressedAt))
                if (moved < Application.styleHints.startDragDistance && !inCard)
                    popupView.dismiss(PopupLayout.TapOutside)
            }
        }

        Item {
            id: popupCard
            objectName: "popupCard"

            property real offsetX: 0
            property real offsetY: 0
            // 1 at rest, 0 once out of sight: how much of the way in it is.
            readonly property real presence: {
                const whole = Math.abs(layout.entryOffsetX) + Math.abs(layout.entryOffsetY)
                if (whole <= 0)
                    return 1
                return Math.max(0, 1 - (Math.abs(offsetX) + Math.abs(offsetY)) / whole)
            }

            x: layout.restingX + popupCard.offsetX
            y: layout.restingY + popupCard.offsetY
            width: layout.popupWidth
            height: layout.popupHeight

            Accessible.role: popupView.type === PopupLayout.Toast ? Accessible.AlertMessage : Accessible.Dialog
            // A popup that goes away when tapped says so to screen readers.
            Accessible.name: popupView.closeOnTap ? qsTr("Dismiss") : ""
            Accessible.onPressAction: {
                if (popupView.closeOnTap)
                    popupView.dismiss(PopupLayout.TapInside)
            }

            // A soft shadow under floating popups and toasts.
            Repeater {
                model: popupView.type === PopupLayout.FullScreen ? 0 : 4
                Rectangle {
                    id: shadowRing
                    required property int index
                    readonly property real spread: (shadowRing.index + 1) * 1.5
                    readonly property real cornerRadius: popupView.type === PopupLayout.FullScreen ? 0 : 16
                    anchors.fill: parent
                    anchors.margins: -shadowRing.spread
                    anchors.topMargin: -shadowRing.spread + 3
                    anchors.bottomMargin: -shadowRing.spread - 3
                    radius: shadowRing.cornerRadius + shadowRing.spread
                    color: "#000000"
                    opacity: 0.045
                }
            }

            Rectangle {
                id: background
                anchors.fill: parent
                radius: popupView.type === PopupLayout.FullScreen ? 0 : 16
                color: popupView.color
            }

            Item {
                id: contentHolder
                anchors.fill: parent
                anchors.margins: popupView.padding
                clip: popupView.type === PopupLayout.FullScreen

                // The content fills the card; a size it was given outright
                // becomes the size it asks for.
                onChildrenChanged: {
                    for (let i = 0; i < contentHolder.children.length; ++i) {
                        const child = contentHolder.children[i]
                        if (child.anchors.fill === contentHolder)
                            continue
                        if (child.implicitWidth <= 0 && child.width > 0)
                            child.implicitWidth = child.width
                        if (child.implicitHeight <= 0 && child.height > 0)
                            child.implicitHeight = child.height
                        child.anchors.fill = contentHolder
                    }
                }
            }

            TapHandler {
                enabled: popupView.closeOnTap
                onTapped: popupView.dismiss(PopupLayout.TapInside)
            }

            DragHandler {
                id: dragHandler
                target: null
                enabled: popupView.dragToDismiss && popupView.isPresented
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
                    popupCard.offsetX = layout.dragOffsetX(t.x, t.y)
                    popupCard.offsetY = layout.dragOffsetY(t.x, t.y)
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

        Timer {
            interval: Math.max(1, popupView.autohideIn)
            running: popupView.autohideIn > 0 && popupView.isPresented && popupLayer.visible
                     && !dragHandler.active
            onTriggered: popupView.dismiss(PopupLayout.Autohide)
        }
    }

    ParallelAnimation {
        id: showAnimation
        NumberAnimation { target: popupCard; property: "offsetX"; to: 0; duration: 320; easing.type: Easing.OutBack; easing.overshoot: 0.9 }
        NumberAnimation { target: popupCard; property: "offsetY"; to: 0; duration: 320; easing.type: Easing.OutBack; easing.overshoot: 0.9 }
    }

    // Back to rest after a drag that did not go far enough.
    ParallelAnimation {
        id: settleAnimation
        SpringAnimation { target: popupCard; property: "offsetX"; to: 0; spring: 5; damping: 0.35; epsilon: 0.25 }
        SpringAnimation { target: popupCard; property: "offsetY"; to: 0; spring: 5; damping: 0.35; epsilon: 0.25 }
    }

    SequentialAnimation {
        id: hideAnimation
        ParallelAnimation {
            NumberAnimation { target: popupCard; property: "offsetX"; to: layout.entryOffsetX; duration: 220; easing.type: Easing.InCubic }
            NumberAnimation { target: popupCard; property: "offsetY"; to: layout.entryOffsetY; duration: 220; easing.type: Easing.InCubic }
        }
        PropertyAction { target: popupLayer; property: "visible"; value: false }
    }
}
