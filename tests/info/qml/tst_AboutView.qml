import QtQuick
import QtTest
import Quieton

TestCase {
    id: testCase
    name: "AboutView"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: aboutComponent
        AboutView { anchors.fill: parent }
    }

    function createAbout() {
        const view = createTemporaryObject(aboutComponent, testCase)
        verify(view)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
        desktop.setRightToLeft(false)
    }

    function test_titleRowsAndBackControl() {
        const view = createAbout()
        compare(findChild(view, "aboutTitle").text, "About")
        compare(findChild(view, "privacyRow").caption, "Privacy")
        compare(findChild(view, "termsOfUseRow").caption, "Terms Of Use")
        verify(!view.isShowingWebViewPrivacy)
        verify(!view.isShowingWebViewTermsOfUse)

        const back = findChild(view, "backButton")
        compare(back.Accessible.name, "Back")
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        mouseClick(back)
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
        // The sheet closes again once the page is in the browser...
        tryCompare(view, data.flag, false)
        // ...so the same row opens it again.
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path, desktop.site() + data.path])
        tryCompare(view, data.flag, false)
    }

    function test_chevronFollowsTheLayoutDirection() {
        let view = createAbout()
        compare(findChild(view, "privacyRow").chevronName, "chevron.right")
        compare(findChild(view, "termsOfUseRow").chevronName, "chevron.right")
        compare(findChild(findChild(view, "privacyRow"), "chevron").source.toString(),
                "qrc:/Quieton/icons/chevron.right.svg")
        const leftToRightChevron = findChild(findChild(view, "privacyRow"), "chevron")
        verify(leftToRightChevron.mapToItem(view, 0, 0).x > view.width / 2)
        desktop.setRightToLeft(true)
        view = createAbout()
        compare(findChild(view, "privacyRow").chevronName, "chevron.left")
        // The whole row reads the other way: the chevron sits at the left.
        verify(findChild(findChild(view, "privacyRow"), "chevron").mapToItem(view, 0, 0).x < view.width / 2)
        verify(findChild(view, "backButton").mapToItem(view, 0, 0).x > view.width / 2)
        verify(findChild(view, "backButton").contentItem.mirror) // pointing right, the way back
        compare(findChild(findChild(view, "termsOfUseRow"), "chevron").source.toString(),
                "qrc:/Quieton/icons/chevron.left.svg")
    }

    Component {
        id: spyComponent
        SignalSpy { }
    }
}
