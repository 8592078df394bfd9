import QtQuick
import QtTest
import Quieton.Settings

// The onboarding pages on their own, driven by swipes.
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

    function settle(view) {
        const pager = findChild(view, "pager")
        tryVerify(() => pager.settled, 3000)
        compare(pager.position, view.vm.selectedPage)
    }

    // A finger moving sideways over the pages, in steps.
    function swipe(view, fromX, toX, steps) {
        const y = 300
        mousePress(view, fromX, y)
        for (let i = 1; i <= steps; ++i)
            mouseMove(view, fromX + (toX - fromX) * i / steps, y, 16)
        mouseRelease(view, toX, y)
    }

    // Swipes stop at both ends; right to left, the same finger move goes the other way.
    function test_swipesStopAtTheEndsAndFollowTheDirection() {
        const view = openWelcome()
        for (const [from, to, expected] of [[40, 360, 0], [340, 40, 1], [340, 40, 2], [340, 40, 2]]) {
            swipe(view, from, to, 12)
            settle(view)
            compare(view.vm.selectedPage, expected)
        }
        view.LayoutMirroring.enabled = true
        view.LayoutMirroring.childrenInherit = true
        swipe(view, 340, 40, 12)
        settle(view)
        compare(view.vm.selectedPage, 1)
    }
}
