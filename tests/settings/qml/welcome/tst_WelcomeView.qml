import QtQuick
import QtTest
import Quieton.Settings

// The onboarding pages on their own: swipes, "Next" and the model's page index
// move one and the same page.
TestCase {
    id: testCase
    name: "WelcomeView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: welcomeComponent
        WelcomeView { id: welcomeView1; vm: testApp.createWelcomeViewModel(welcomeView1); anchors.fill: parent }
    }

    function openWelcome() {
        const view = createTemporaryObject(welcomeComponent, testCase)
        waitForRendering(view)
        return view
    }

    // Waits until the pages rest, then checks that the page in view is the model's.
    function settle(view, expected) {
        const pager = findChild(view, "pager")
        tryVerify(() => pager.settled, 3000)
        compare(view.vm.selectedPage, expected)
        compare(pager.currentIndex, expected)
        for (let i = 0; i < 3; ++i)
            compare(findChild(view, "page" + i).visible, i === expected, "page " + i + " shown")
    }

    // A finger moving sideways over the pages, in steps.
    function swipe(view, fromX, toX) {
        const y = 300
        mousePress(view, fromX, y)
        for (let i = 1; i <= 12; ++i)
            mouseMove(view, fromX + (toX - fromX) * i / 12, y, 16)
        mouseRelease(view, toX, y)
    }

    // Swipes stop at both ends; swiping back from the last page and pressing
    // "Next" (a tap, or a screen reader's press) returns to it; the model's
    // index moves the pages; right to left, the same finger move goes the other way.
    function test_swipesNextAndTheModelMoveOnePage() {
        const view = openWelcome()
        for (const [from, to, expected] of [[40, 360, 0], [340, 40, 1], [340, 40, 2], [340, 40, 2], [40, 360, 1]]) {
            swipe(view, from, to)
            settle(view, expected)
        }
        mouseClick(findChild(view, "nextButton1"))
        settle(view, 2)
        swipe(view, 40, 360)
        settle(view, 1)
        verify(screenReader.act(findChild(view, "nextButton1"), "Press"))
        settle(view, 2)
        view.vm.selectedPage = 0
        settle(view, 0)

        view.LayoutMirroring.enabled = true
        view.LayoutMirroring.childrenInherit = true
        swipe(view, 40, 360)
        settle(view, 1)
    }
}
