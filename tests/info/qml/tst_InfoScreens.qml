import QtQuick
import QtTest
import Quieton.Info
import Quieton.Settings

TestCase {
    id: testCase
    name: "InfoScreens"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: aboutComponent
        AboutView { service: testApp.service; urlOpener: testApp.urlOpener; anchors.fill: parent }
    }
    Component {
        id: feedbackComponent
        SendFeedBackView { id: feedback1; vm: testApp.createSettingViewModel(feedback1).createSendFeedBackModel(feedback1); anchors.fill: parent }
    }
    Component { id: spyComponent; SignalSpy { } }
    Component { id: screenComponent; Item { anchors.fill: parent } }

    function create(component) {
        const view = createTemporaryObject(component, testCase)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
        desktop.setRightToLeft(false)
    }

    function test_rowsOpenTheirPagesAgainAndAgain_data() {
        return [
            { tag: "privacy", screen: aboutComponent, row: "privacyRow", flag: "isShowingWebViewPrivacy", path: "/privacyPolicy" },
            { tag: "terms", screen: aboutComponent, row: "termsOfUseRow", flag: "isShowingWebViewTermsOfUse", path: "/termsOfUs" },
            { tag: "feedback", screen: feedbackComponent, row: "leaveAFeedbackRow", flag: "isLeaveAFeedBackSheetPresented", path: "/sendFeedBack" },
            { tag: "feature", screen: feedbackComponent, row: "suggestAFeatureRow", flag: "isSuggestAFeaturePresented", path: "/suggestAFeature" },
            { tag: "problem", screen: feedbackComponent, row: "reportAProblemRow", flag: "isReportAProblemSheetPresented", path: "/reportAProblem" },
        ]
    }
    function test_rowsOpenTheirPagesAgainAndAgain(data) {
        const view = create(data.screen)
        const row = findChild(view, data.row)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path])
        // The sheet closes once the page is in the browser, so the row opens it again.
        tryCompare(view, data.flag, false)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path, desktop.site() + data.path])
        compare(desktop.shared(), [])
    }

    function test_shareWithFriendSharesTheRecommendation() {
        const view = create(feedbackComponent)
        mouseClick(findChild(view, "shareWithFriendRow"))
        const shared = desktop.shared()
        compare(shared.length, 1)
        verify(shared[0].startsWith("Check out this cool app! https://"))
        compare(desktop.opened(), [])
    }

    function test_textAndBack_data() {
        return [
            { tag: "about", screen: aboutComponent, label: "aboutTitle", text: "About" },
            { tag: "feedback", screen: feedbackComponent, label: "feedbackText",
              text: "Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience." },
        ]
    }
    function test_textAndBack(data) {
        const view = create(data.screen)
        compare(findChild(view, data.label).text, data.text)
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        mouseClick(findChild(view, "backButton"))
        compare(dismissed.count, 1)
        verify(view.visible) // closing is the presenter's business
    }

    function test_rightToLeftMirrorsTheRows() {
        verify(findChild(findChild(create(aboutComponent), "privacyRow"), "chevron").mapToItem(testCase, 0, 0).x > width / 2)
        desktop.setRightToLeft(true)
        const view = create(aboutComponent)
        const chevron = findChild(findChild(view, "termsOfUseRow"), "chevron")
        compare(chevron.source.toString(), "qrc:/Quieton/icons/chevron.left.svg")
        verify(chevron.mapToItem(view, 0, 0).x < view.width / 2)
        verify(findChild(view, "backButton").mapToItem(view, 0, 0).x > view.width / 2)
        verify(findChild(view, "backButton").contentItem.mirror) // pointing right, the way back
        const feedback = create(feedbackComponent)
        for (const name of ["leaveAFeedbackRow", "suggestAFeatureRow", "reportAProblemRow", "shareWithFriendRow"])
            compare(findChild(feedback, name).chevronName, "chevron.left")
    }

    // Any screen can offer the update: the alert goes over the screen's window,
    // "Not now" first. (Its buttons are checked with the real update check.)
    function test_updateAlertSaysWhatItIs() {
        const alert = testApp.checkNewVersionService.showAppUpdateAlertWithVersion(create(screenComponent), "2.0", false, "https://x", false)
        tryCompare(alert, "opened", true)
        compare(alert.title, "New version")
        compare(findChild(alert.contentItem, "appUpdateAlertMessage").text,
                "A new version of Quieton is now available for download, update now!")
        verify(findChild(alert.footer, "notNowButton").x < findChild(alert.footer, "updateNowButton").x)
        alert.close()
        const offWindow = screenComponent.createObject(null)
        compare(testApp.checkNewVersionService.showAppUpdateAlertWithVersion(offWindow, "2.0", false, "https://x", false), null)
        offWindow.destroy()
    }
}
