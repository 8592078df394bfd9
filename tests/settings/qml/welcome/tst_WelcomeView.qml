import QtQuick
import QtTest
import Quieton.Settings

// The onboarding pages on their own, driven by buttons and by swipes.
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

    function test_nextMovesOnePageWithASpringToTheCostNote() {
        const view = openWelcome()
        const indicator = findChild(view, "pageIndicator")
        compare(indicator.count, 3)
        const pager = findChild(view, "pager")
        mouseClick(findChild(view, "nextButton0"))
        compare(view.vm.selectedPage, 1)
        compare(indicator.currentIndex, 1)
        // The pages travel rather than jump, and come to rest on page 1.
        verify(!pager.settled)
        let between = false
        const watch = () => { if (pager.position > 0.05 && pager.position < 0.95) between = true }
        pager.positionChanged.connect(watch)
        settle(view)
        pager.positionChanged.disconnect(watch)
        verify(between)
        verify(findChild(view, "page1").visible && !findChild(view, "page0").visible)
        mouseClick(findChild(view, "nextButton1"))
        settle(view)
        compare(view.vm.selectedPage, 2)
        // The note on costs is on the last page only.
        verify(findChild(findChild(view, "page2"), "costNote").visible)
        verify(!findChild(findChild(view, "page1"), "costNote").visible)
        compare(view.showMainView, false)
        // The first dot of the page indicator turns back to the first page.
        mouseClick(indicator, indicator.leftPadding + 4, indicator.height / 2)
        settle(view)
        compare(view.vm.selectedPage, 0)
    }

    function test_swipesTurnPagesButNotPastTheEnds() {
        const view = openWelcome()
        // A slow short move is not a page turn: the page springs back.
        mousePress(view, 250, 300)
        for (let i = 1; i <= 6; ++i)
            mouseMove(view, 250 - i * 10, 300, 40)
        wait(200)
        mouseRelease(view, 190, 300)
        settle(view)
        compare(view.vm.selectedPage, 0)
        // There is nothing before the first page.
        swipe(view, 40, 360, 12)
        settle(view)
        compare(view.vm.selectedPage, 0)
        // Nor after the last; swiped back from it, "Next" returns to it.
        for (const [from, to, expected] of [[340, 40, 1], [340, 40, 2], [340, 40, 2], [40, 340, 1]]) {
            swipe(view, from, to, 12)
            settle(view)
            compare(view.vm.selectedPage, expected)
        }
        compare(findChild(view, "pageIndicator").currentIndex, 1)
        mouseClick(findChild(view, "nextButton1"))
        settle(view)
        compare(view.vm.selectedPage, 2)
    }

    function test_rightToLeftSwipesTheOtherWay() {
        const view = openWelcome()
        view.LayoutMirroring.enabled = true
        view.LayoutMirroring.childrenInherit = true
        // The next page lies to the left: a finger moving right brings it.
        swipe(view, 40, 340, 12)
        settle(view)
        compare(view.vm.selectedPage, 1)
        verify(findChild(view, "page2").x < 0)
        keyClick(Qt.Key_Right)
        settle(view)
        compare(view.vm.selectedPage, 0)
    }
}
