import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Core
import Quieton.Popup

// Every way a popup goes away, reported once with its source, leaving the owner's binding working.
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
    function present(props, owner) {
        owner = owner || createTemporaryObject(ownerComponent, testCase)
        owner.sources = []
        for (const key in props)
            owner.popup[key] = props[key]
        owner.showing = true
        tryCompare(owner.popup, "opened", true)
        compare([owner.popup.offsetX, owner.popup.offsetY], [0, 0])
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
        compare([owner.popup.isPresented, owner.showing], [false, false], "gone by " + source)
        compare(owner.sources, [source])
        tryCompare(owner.popup, "shown", false, 2000)
    }

    // A floating card in the middle, until its owner lowers the flag or its time is up.
    function test_theOwnersFlagOrTheTimeTakesItAway() {
        const owner = present({})
        compare([owner.popup.x, owner.popup.y, owner.popup.width, owner.popup.height], [84, 324, 232, 152])
        owner.showing = false
        expectGone(owner, PopupLayout.Binding)
        present({ autohideIn: 150 }, owner)
        tryCompare(owner, "showing", false, 2000)
        expectGone(owner, PopupLayout.Autohide)
    }

    // Taps, Escape and the Back key; after each the owner's binding presents it again.
    function test_tapsAndKeysClose() {
        const owner = present({ closeOnTap: false })
        mouseClick(owner.popup.card) // inside is not outside, even where nothing takes the tap
        owner.popup.closeOnTapOutside = false
        mouseClick(testCase, 10, 10)
        verify(owner.popup.isPresented)
        compare([owner.sources, owner.underneathClicks], [[], 0]) // a floating popup keeps the window from touches

        owner.popup.closeOnTapOutside = true
        mouseClick(testCase, 10, 10)
        expectGone(owner, PopupLayout.TapOutside)
        present({ closeOnTap: true }, owner)
        mouseClick(owner.popup.card)
        expectGone(owner, PopupLayout.TapInside)
        for (const key of [Qt.Key_Escape, Qt.Key_Back]) {
            present({}, owner)
            keyClick(key)
            expectGone(owner, PopupLayout.Escape)
        }
    }

    // Where the drag threshold lies is the layout's; here, the finger's effect.
    function test_dragDismissesOnlyTowardsItsEdge() {
        let owner = present({ appearFrom: PopupLayout.FromBottom })
        drag(200, 400, 0, -80)
        verify(owner.popup.isPresented)
        compare(owner.popup.offsetY, 0)

        owner = present({ appearFrom: PopupLayout.FromTop, position: PopupLayout.Top })
        drag(200, 100, 0, -70)
        expectGone(owner, PopupLayout.Drag)
    }

    function test_toastSpansTheWidthAndLeavesTheWindowUsable() {
        const owner = present({ type: PopupLayout.Toast, position: PopupLayout.Bottom, closeOnTapOutside: false })
        const underneath = findChild(owner, "underneath")
        mouseClick(underneath)
        compare([owner.underneathClicks, owner.sources, owner.popup.width], [1, [], 400 - 2 * 16])
        owner.popup.closeOnTapOutside = true
        mouseClick(underneath)
        compare(owner.underneathClicks, 2)
        expectGone(owner, PopupLayout.TapOutside)
    }
}
