import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Every way a popup goes away, each reported once with its source and each
// leaving the owner's flag lowered and its binding working.
TestCase {
    id: testCase
    name: "PopupView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: ownerComponent
        Item {
            id: owner
            anchors.fill: parent
            property bool showing: false
            property var sources: []
            property alias popup: popup
            property int underneathClicks: 0

            Button {
                objectName: "underneath"
                x: 20
                y: 400
                text: "Underneath"
                onClicked: owner.underneathClicks += 1
            }

            PopupView {
                id: popup
                isPresented: owner.showing
                onIsPresentedChanged: owner.showing = popup.isPresented
                onDismissed: (source) => { owner.sources = owner.sources.concat([source]) }
                Rectangle {
                    objectName: "body"
                    implicitWidth: 200
                    implicitHeight: 120
                    color: "lightsteelblue"
                }
            }
        }
    }

    Component {
        id: editorComponent
        Item {
            anchors.fill: parent
            property alias popup: popup
            property alias field: field
            PopupView {
                id: popup
                TextField { id: field; objectName: "field"; implicitWidth: 240 }
            }
        }
    }

    Component {
        id: appWindowComponent
        ApplicationWindow {
            width: 360
            height: 640
            visible: true
            property alias popup: popup
            header: ToolBar { Label { text: "Settings" } }
            footer: TabBar { TabButton { text: "Dialer" } }
            Page {
                anchors.fill: parent
                PopupView {
                    id: popup
                    type: PopupLayout.FullScreen
                    Rectangle { color: "white" }
                }
            }
        }
    }

    function present(props) {
        const owner = createTemporaryObject(ownerComponent, testCase)
        verify(owner)
        for (const key in props)
            owner.popup[key] = props[key]
        owner.showing = true
        verify(owner.popup.shown)
        // Settled at its place.
        tryCompare(owner.popup.card, "offsetX", 0, 2000)
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        return owner
    }

    // A finger moved in steps, in window coordinates: the popup moves under it.
    function drag(x, y, dx, dy) {
        mousePress(testCase, x, y)
        const steps = 10
        for (let i = 1; i <= steps; ++i)
            mouseMove(testCase, x + dx * i / steps, y + dy * i / steps)
        mouseRelease(testCase, x + dx, y + dy)
    }

    function expectGone(owner, source) {
        compare(owner.popup.isPresented, false)
        compare(owner.showing, false)
        compare(owner.sources, [source])
        tryCompare(owner.popup, "shown", false, 2000)
    }

    function test_theOwnersFlagShowsAndHidesIt() {
        const owner = present({})
        const card = owner.popup.card
        // A floating card of the content's size plus padding, in the middle.
        compare(card.width, 240)
        compare(card.height, 160)
        compare(card.x, 80)
        compare(card.y, 320)
        owner.showing = false
        expectGone(owner, PopupLayout.Binding)
    }

    function test_tapsCloseOnlyWhenAllowed() {
        const owner = present({ closeOnTap: false, closeOnTapOutside: false, dragToDismiss: false })
        mouseClick(owner.popup.card)
        mouseClick(testCase, 10, 10)
        wait(50)
        verify(owner.popup.isPresented)
        compare(owner.sources, [])
        compare(owner.underneathClicks, 0) // a floating popup keeps the window from touches

        owner.popup.closeOnTapOutside = true
        mouseClick(owner.popup.card) // inside is not outside, even where nothing takes the tap
        wait(50)
        verify(owner.popup.isPresented)
        mouseClick(testCase, 10, 10)
        expectGone(owner, PopupLayout.TapOutside)

        // The owner's binding survived: raising its flag presents it again.
        owner.sources = []
        owner.showing = true
        verify(owner.popup.shown)
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        owner.popup.closeOnTap = true
        mouseClick(owner.popup.card)
        expectGone(owner, PopupLayout.TapInside)
    }

    function test_dragDismissesPastAThirdOnly() {
        let owner = present({ appearFrom: PopupLayout.FromBottom })
        const card = owner.popup.card
        // A third of 160 is 53.3: 45 points down is not enough.
        drag(200, 400, 0, 45)
        wait(50)
        verify(owner.popup.isPresented)
        compare(owner.sources, [])
        tryCompare(card, "offsetY", 0, 3000)
        // Upwards, away from its edge, it does not follow.
        mousePress(testCase, 200, 400)
        for (let i = 1; i <= 8; ++i)
            mouseMove(testCase, 200, 400 - i * 10)
        compare(card.offsetY, 0)
        mouseRelease(testCase, 200, 320)
        verify(owner.popup.isPresented)
        // Switched off, even a long drag leaves it in place.
        owner.popup.dragToDismiss = false
        drag(200, 400, 0, 120)
        wait(50)
        verify(owner.popup.isPresented)
        compare(card.offsetY, 0)

        owner = present({ appearFrom: PopupLayout.FromTop, position: PopupLayout.Top })
        compare(owner.popup.card.y, 16)
        drag(200, 100, 0, -70)
        expectGone(owner, PopupLayout.Drag)
    }

    function test_autohideAfterItsDelayOnly() {
        const owner = present({})
        wait(400)
        verify(owner.popup.isPresented) // off by default

        owner.showing = false
        tryCompare(owner.popup, "shown", false, 2000)
        owner.sources = []
        owner.popup.autohideIn = 150
        owner.showing = true
        verify(owner.popup.isPresented)
        tryCompare(owner, "showing", false, 2000)
        expectGone(owner, PopupLayout.Autohide)
    }

    function test_toastSpansTheWidthAndLeavesTheWindowUsable() {
        const owner = present({ type: PopupLayout.Toast, position: PopupLayout.Bottom, closeOnTapOutside: false })
        const underneath = findChild(owner, "underneath")
        mouseClick(underneath)
        compare(owner.underneathClicks, 1)
        compare(owner.sources, [])
        compare(owner.popup.card.width, 400 - 2 * 16)
        owner.popup.closeOnTapOutside = true
        mouseClick(underneath)
        compare(owner.underneathClicks, 2)
        expectGone(owner, PopupLayout.TapOutside)
    }

    function test_fullScreenCoversTheWholeWindowFromInsideAPage() {
        const owner = present({ type: PopupLayout.FullScreen })
        compare(findChild(owner.popup.card, "body").height, 800)
        // A drag is scrolling its content, not a dismissal, unless asked for.
        verify(!owner.popup.dragToDismiss)
        drag(200, 300, 0, 400)
        wait(50)
        verify(owner.popup.isPresented)

        const window = createTemporaryObject(appWindowComponent, testCase)
        verify(window)
        window.popup.isPresented = true
        const card = window.popup.card
        tryCompare(card, "offsetY", 0, 2000)
        // Over the tool bar and the tab bar too, not only over its page.
        compare(card.mapToItem(null, 0, 0).y, 0)
        compare(card.height, 640)
        compare(card.width, 360)
        // And it follows the window's size.
        window.width = 420
        tryCompare(card, "width", 420)
    }

    function test_controlsInsideKeepTheirTouchesAndKeys() {
        const owner = createTemporaryObject(editorComponent, testCase)
        owner.popup.isPresented = true
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        mouseClick(owner.field)
        verify(owner.field.activeFocus)
        keyClick(Qt.Key_NumberSign)
        keyClick(Qt.Key_3)
        compare(owner.field.text, "#3")
        // Sideways, along the text, a finger selects rather than drags the popup.
        mouseDrag(owner.field, 10, 10, 150, 0)
        verify(owner.popup.isPresented)
        compare(owner.popup.card.offsetY, 0)
    }
}
