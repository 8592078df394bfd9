import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Popup

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
                TextField { id: field; implicitWidth: 240 }
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

    // An owner with its popup presented with these properties, settled in place.
    function present(props) {
        const owner = createTemporaryObject(ownerComponent, testCase)
        for (const key in props)
            owner.popup[key] = props[key]
        owner.showing = true
        verify(owner.popup.shown)
        tryCompare(owner.popup.card, "offsetX", 0, 2000)
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        return owner
    }

    // A finger moved in steps, in window coordinates: the popup moves under it.
    function drag(x, y, dx, dy) {
        mousePress(testCase, x, y)
        for (let i = 1; i <= 10; ++i)
            mouseMove(testCase, x + dx * i / 10, y + dy * i / 10)
        mouseRelease(testCase, x + dx, y + dy)
    }

    function expectGone(owner, source) {
        compare([owner.popup.isPresented, owner.showing], [false, false])
        compare(owner.sources, [source])
        tryCompare(owner.popup, "shown", false, 2000)
    }

    // A floating card of the content's size plus padding, in the middle.
    function test_theOwnersFlagShowsAndHidesIt() {
        const owner = present({})
        const card = owner.popup.card
        compare([card.x, card.y, card.width, card.height], [80, 320, 240, 160])
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
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        owner.popup.closeOnTap = true
        mouseClick(owner.popup.card)
        expectGone(owner, PopupLayout.TapInside)
    }

    // Where the drag threshold lies is the layout's; here, the finger's effect.
    function test_dragDismissesOnlyTowardsItsEdge() {
        let owner = present({ appearFrom: PopupLayout.FromBottom })
        const card = owner.popup.card
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
        verify(!owner.popup.dragToDismiss) // a drag scrolls its content

        // Over the tool bar and the tab bar too, following the window's size.
        const window = createTemporaryObject(appWindowComponent, testCase)
        window.popup.isPresented = true
        const card = window.popup.card
        tryCompare(card, "offsetY", 0, 2000)
        compare([card.mapToItem(null, 0, 0).y, card.width, card.height], [0, 360, 640])
        window.width = 420
        tryCompare(card, "width", 420)
    }

    function test_controlsInsideKeepTheirTouchesAndKeys() {
        const owner = createTemporaryObject(editorComponent, testCase)
        owner.popup.isPresented = true
        tryCompare(owner.popup.card, "offsetY", 0, 2000)
        mouseClick(owner.field)
        keyClick(Qt.Key_NumberSign)
        keyClick(Qt.Key_3)
        compare(owner.field.text, "#3")
        // Sideways, along the text, a finger selects rather than drags the popup.
        mouseDrag(owner.field, 10, 10, 150, 0)
        verify(owner.popup.isPresented)
        compare(owner.popup.card.offsetY, 0)
    }
}
