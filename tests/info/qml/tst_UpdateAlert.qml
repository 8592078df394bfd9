import QtQuick
import QtTest
import Quieton

// Any screen can offer the update: the alert goes over the screen's window.
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

    function init() {
        desktop.clear()
    }

    function showOn(force, link) {
        const screen = createTemporaryObject(screenComponent, testCase)
        const alert = UpdateAlertPresenter.showAppUpdateAlertWithVersion(screen, "2.0", force, link, false)
        verify(alert)
        tryCompare(alert, "opened", true)
        return alert
    }

    function test_anOptionalUpdateCanBePutOff() {
        const alert = showOn(false, "https://store.example/app/quieton")
        compare(alert.title, "New version")
        compare(findChild(alert.contentItem, "appUpdateAlertMessage").text,
                "A new version of Quieton is now available for download, update now!")
        const notNow = findChild(alert.footer, "notNowButton")
        verify(notNow.visible)
        compare(notNow.text, "Not now")
        compare(findChild(alert.footer, "updateNowButton").text, "Update Now")
        // "Not now" comes first.
        verify(notNow.x < findChild(alert.footer, "updateNowButton").x)
        mouseClick(notNow)
        tryVerify(() => alert.visible !== true) // closed, then gone
        compare(desktop.opened(), [])
    }

    function test_updateNowOpensTheLink() {
        const alert = showOn(true, "https://store.example/app/quieton")
        verify(!findChild(alert.footer, "notNowButton").visible)
        mouseClick(findChild(alert.footer, "updateNowButton"))
        compare(desktop.opened(), ["https://store.example/app/quieton"])
        tryVerify(() => alert.visible !== true) // closed, then gone
    }

    function test_aScreenOffTheWindowShowsNothing() {
        const screen = screenComponent.createObject(null)
        compare(UpdateAlertPresenter.showAppUpdateAlertWithVersion(screen, "2.0", false, "https://x", false), null)
        screen.destroy()
    }
}
