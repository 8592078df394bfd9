import QtQuick
import QtTest
import Quieton.Settings
import Quieton.App

// The onboarding pages, and the app's own window that shows them until "Get Started".
TestCase {
    id: testCase
    name: "WelcomeView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component { id: welcomeComponent; WelcomeView { id: welcomeView1; vm: testApp.createWelcomeViewModel(welcomeView1); anchors.fill: parent } }
    Component { id: appWindowComponent; AppWindow { app: testApp } }

    // Waits until the pages rest, then checks that the page in view is the model's.
    function settle(view, expected) {
        const pager = findChild(view, "pager")
        tryVerify(() => pager.settled, 3000)
        compare(view.vm.selectedPage, expected)
        compare(pager.currentIndex, expected)
        for (let i = 0; i < 3; ++i)
            compare(findChild(view, "page" + i).visible, i === expected, "page " + i + " shown")
    }

    function swipe(view, fromX, toX) {
        const y = 300
        mousePress(view, fromX, y)
        for (let i = 1; i <= 12; ++i)
            mouseMove(view, fromX + (toX - fromX) * i / 12, y, 16)
        mouseRelease(view, toX, y)
    }

    // Swipes (mirrored right to left), "Next" and the model's index move one and the same page.
    function test_swipesNextAndTheModelMoveOnePage() {
        const view = createTemporaryObject(welcomeComponent, testCase)
        waitForRendering(view)
        for (const [from, to, expected] of [[40, 360, 0], [340, 40, 1], [340, 40, 2], [340, 40, 2], [40, 360, 1]]) {
            swipe(view, from, to)
            settle(view, expected)
        }
        verify(screenReader.act(findChild(view, "nextButton1"), "Press"))
        settle(view, 2)
        view.vm.selectedPage = 0
        settle(view, 0)

        view.LayoutMirroring.enabled = true
        view.LayoutMirroring.childrenInherit = true
        swipe(view, 40, 360)
        settle(view, 1)
    }

    function start() {
        const window = createTemporaryObject(appWindowComponent, testCase)
        tryVerify(() => window.active || window.visible)
        return window
    }

    // What the window shows: the onboarding or the main screen.
    function scene(window) {
        const loader = window.contentItem.children[0]
        tryVerify(() => loader.item !== null)
        return loader.item
    }

    function turnPage(welcome, button) {
        mouseClick(findChild(welcome, button))
        tryVerify(() => findChild(welcome, "pager").settled, 3000)
    }

    function test_onboardingUntilGetStartedThenTheMainScreenForGood() {
        defaults.setBool("hasCompletedFirstLaunch", false)
        // Quitting halfway stores nothing: the next start begins at the first page.
        let window = start()
        compare(scene(window).objectName, "welcomeView")
        turnPage(scene(window), "nextButton0")
        window.destroy()
        wait(0)
        verify(!disk.setting("hasCompletedFirstLaunch"))

        window = start()
        const welcome = scene(window)
        compare(welcome.vm.selectedPage, 0)
        turnPage(welcome, "nextButton0")
        turnPage(welcome, "nextButton1")
        mouseClick(findChild(welcome, "getStartedButton"))
        verify(disk.setting("hasCompletedFirstLaunch"))
        tryVerify(() => scene(window).objectName !== "welcomeView")
        window.destroy()
        wait(0)

        // The next start goes straight to the main screen.
        window = start()
        verify(scene(window).objectName !== "welcomeView")
    }
}
