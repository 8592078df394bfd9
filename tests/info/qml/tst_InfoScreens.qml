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

    Component { id: aboutComponent; AboutView { service: testApp.service; urlOpener: testApp.urlOpener; anchors.fill: parent } }
    Component { id: feedbackComponent; SendFeedBackView { id: feedback1; vm: testApp.createSettingViewModel(feedback1).createSendFeedBackModel(feedback1); anchors.fill: parent } }
    Component { id: spyComponent; SignalSpy { } }
    Component { id: screenComponent; Item { anchors.fill: parent } }

    function create(component) {
        const view = createTemporaryObject(component, testCase)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
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
    // Back only asks to be dismissed: closing is the presenter's business.
    function test_rowsOpenTheirPagesAgainAndAgain(data) {
        const view = create(data.screen)
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        const row = findChild(view, data.row)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path])
        // The sheet closes once the page is in the browser, so the row opens it again.
        tryCompare(view, data.flag, false)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path, desktop.site() + data.path])
        mouseClick(findChild(view, "backButton"))
        compare(dismissed.count, 1)
        verify(view.visible)
    }

    function test_shareWithFriendSharesTheRecommendation() {
        mouseClick(findChild(create(feedbackComponent), "shareWithFriendRow"))
        const shared = desktop.shared()
        compare(shared.length, 1)
        verify(shared[0].startsWith("Check out this cool app! https://"))
        compare(desktop.opened(), [])
    }

    // Any screen can offer the update, over its own window; a screen with no window gets none.
    function test_updateAlertGoesOverTheScreensWindow() {
        const alert = testApp.checkNewVersionService.showAppUpdateAlertWithVersion(create(screenComponent), "2.0", false, "https://x", false)
        tryCompare(alert, "opened", true)
        alert.close()
        const offWindow = screenComponent.createObject(null)
        compare(testApp.checkNewVersionService.showAppUpdateAlertWithVersion(offWindow, "2.0", false, "https://x", false), null)
        offWindow.destroy()
    }
}
