import QtQuick
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Any screen can offer the update: the alert goes over the screen's window.
// (What its buttons do is checked with the real update check.)
TestCase {
    id: testCase
    name: "UpdateAlert"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: screenComponent
        Item { anchors.fill: parent }
    }

    function test_anOptionalUpdateSaysWhatItIs() {
        const screen = createTemporaryObject(screenComponent, testCase)
        const alert = testApp.checkNewVersionService.showAppUpdateAlertWithVersion(screen, "2.0", false, "https://x", false)
        tryCompare(alert, "opened", true)
        compare(alert.title, "New version")
        compare(findChild(alert.contentItem, "appUpdateAlertMessage").text,
                "A new version of Quieton is now available for download, update now!")
        // "Not now" comes first.
        verify(findChild(alert.footer, "notNowButton").x < findChild(alert.footer, "updateNowButton").x)
        alert.close()
    }

    function test_aScreenOffTheWindowShowsNothing() {
        const screen = screenComponent.createObject(null)
        compare(testApp.checkNewVersionService.showAppUpdateAlertWithVersion(screen, "2.0", false, "https://x", false), null)
        screen.destroy()
    }
}
