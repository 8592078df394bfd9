import QtQuick
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

TestCase {
    id: testCase
    name: "AboutView"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: aboutComponent
        AboutView { service: testApp.service; urlOpener: testApp.urlOpener; anchors.fill: parent }
    }
    Component {
        id: spyComponent
        SignalSpy { }
    }

    function createAbout() {
        const view = createTemporaryObject(aboutComponent, testCase)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
        desktop.setRightToLeft(false)
    }

    function test_titleAndBack() {
        const view = createAbout()
        compare(findChild(view, "aboutTitle").text, "About")
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        mouseClick(findChild(view, "backButton"))
        compare(dismissed.count, 1)
        verify(view.visible) // closing is the presenter's business
    }

    function test_rowsOpenTheLegalPages_data() {
        return [
            { tag: "privacy", row: "privacyRow", flag: "isShowingWebViewPrivacy", path: "/privacyPolicy" },
            { tag: "terms", row: "termsOfUseRow", flag: "isShowingWebViewTermsOfUse", path: "/termsOfUs" },
        ]
    }
    function test_rowsOpenTheLegalPages(data) {
        const view = createAbout()
        const row = findChild(view, data.row)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path])
        // The sheet closes again once the page is in the browser, so the
        // same row opens it again.
        tryCompare(view, data.flag, false)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path, desktop.site() + data.path])
    }

    function test_rightToLeftMirrorsTheRows() {
        let view = createAbout()
        verify(findChild(findChild(view, "privacyRow"), "chevron").mapToItem(view, 0, 0).x > view.width / 2)
        desktop.setRightToLeft(true)
        view = createAbout()
        const chevron = findChild(findChild(view, "termsOfUseRow"), "chevron")
        compare(chevron.source.toString(), "qrc:/Quieton/icons/chevron.left.svg")
        verify(chevron.mapToItem(view, 0, 0).x < view.width / 2)
        verify(findChild(view, "backButton").mapToItem(view, 0, 0).x > view.width / 2)
        verify(findChild(view, "backButton").contentItem.mirror) // pointing right, the way back
    }
}
