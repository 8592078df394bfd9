import QtQuick
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The app's own window on a fresh settings file: onboarding until
// "Get Started", the main screen from then on, also at the next start.
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
        verify(window)
        tryVerify(() => window.active || window.visible)
        return window
    }

    // What the window shows: the onboarding or the main screen.
    function scene(window) {
        const loader = window.contentItem.children[0]
        tryVerify(() => loader.item !== null)
        return loader.item
    }

    function isOnboarding(item) { return item.objectName === "welcomeView" }

    function settle(welcome) {
        const pager = findChild(welcome, "pager")
        tryVerify(() => pager.settled, 3000)
    }

    function test_onboardingUntilGetStartedThenTheMainScreenForGood() {
        // Quitting halfway: nothing is stored and the next start begins again
        // at the first page.
        let window = start()
        let welcome = scene(window)
        verify(isOnboarding(welcome))
        mouseClick(findChild(welcome, "nextButton0"))
        settle(welcome)
        window.destroy()
        wait(0)
        verify(!settingsFile.has("hasCompletedFirstLaunch"))

        window = start()
        welcome = scene(window)
        verify(isOnboarding(welcome))
        compare(welcome.vm.selectedPage, 0)
        for (const name of ["nextButton0", "nextButton1"]) {
            mouseClick(findChild(welcome, name))
            settle(welcome)
        }
        let shownMain = false
        welcome.showMainViewChanged.connect(() => { shownMain = welcome.showMainView })
        mouseClick(findChild(welcome, "getStartedButton"))
        verify(shownMain)
        verify(settingsFile.boolValue("hasCompletedFirstLaunch"))
        tryVerify(() => !isOnboarding(scene(window)))
        compare(scene(window).footer.count, 4)
        window.destroy()
        wait(0)

        // The next start goes straight to the main screen.
        window = start()
        verify(!isOnboarding(scene(window)))
        compare(scene(window).footer.count, 4)
    }
}
