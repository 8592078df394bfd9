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
                    implicitWidth: 200
                    implicitHeight: 120
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
        const owner = present({ closeOnTap: false })
        mouseClick(owner.popup.card) // inside is not outside, even where nothing takes the tap
        verify(owner.popup.isPresented)
        owner.popup.closeOnTapOutside = false
        mouseClick(testCase, 10, 10)
        verify(owner.popup.isPresented)
        compare(owner.sources, [])
        compare(owner.underneathClicks, 0) // a floating popup keeps the window from touches

        owner.popup.closeOnTapOutside = true
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
        drag(200, 400, 0, -80)
        verify(owner.popup.isPresented)
        compare(owner.popup.card.offsetY, 0)

        owner = present({ appearFrom: PopupLayout.FromTop, position: PopupLayout.Top })
        compare(owner.popup.card.y, 16)
        drag(200, 100, 0, -70)
        expectGone(owner, PopupLayout.Drag)
    }

    function test_autohide() {
        const owner = present({})
        owner.popup.autohideIn = 150
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
}
