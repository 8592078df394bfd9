import QtQuick
import QtTest
import Quieton.App

// The app's own window: onboarding until "Get Started", the main screen
// from then on, also at the next start.
TestCase {
    id: testCase
    name: "FirstRun"
    when: windowShown

    Component {
        id: appWindowComponent
        AppWindow { app: testApp; }
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
        compare(welcome.objectName, "welcomeView")
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
