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
    name: "SendFeedBackView"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: feedbackComponent
        SendFeedBackView { id: feedback1; vm: testApp.createSettingViewModel(feedback1).createSendFeedBackModel(feedback1); anchors.fill: parent }
    }
    Component {
        id: spyComponent
        SignalSpy { }
    }

    function createFeedback() {
        const view = createTemporaryObject(feedbackComponent, testCase)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
        desktop.setRightToLeft(false)
    }

    function test_rowsOpenTheirPagesAgainAndAgain_data() {
        return [
            { tag: "feedback", row: "leaveAFeedbackRow", flag: "isLeaveAFeedBackSheetPresented", path: "/sendFeedBack" },
            { tag: "feature", row: "suggestAFeatureRow", flag: "isSuggestAFeaturePresented", path: "/suggestAFeature" },
            { tag: "problem", row: "reportAProblemRow", flag: "isReportAProblemSheetPresented", path: "/reportAProblem" },
        ]
    }
    function test_rowsOpenTheirPagesAgainAndAgain(data) {
        const view = createFeedback()
        const row = findChild(view, data.row)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path])
        tryCompare(view, data.flag, false)
        mouseClick(row)
        compare(desktop.opened(), [desktop.site() + data.path, desktop.site() + data.path])
        compare(desktop.shared(), [])
    }

    function test_shareWithFriendSharesTheRecommendation() {
        const view = createFeedback()
        mouseClick(findChild(view, "shareWithFriendRow"))
        const shared = desktop.shared()
        compare(shared.length, 1)
        verify(shared[0].startsWith("Check out this cool app! https://"))
        compare(desktop.opened(), [])
    }

    function test_textAndBack() {
        const view = createFeedback()
        compare(findChild(view, "feedbackText").text,
                "Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.")
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        mouseClick(findChild(view, "backButton"))
        compare(dismissed.count, 1)
    }

    function test_chevronsPointTheWayTheLayoutReads() {
        desktop.setRightToLeft(true)
        const view = createFeedback()
        for (const name of ["leaveAFeedbackRow", "suggestAFeatureRow", "reportAProblemRow", "shareWithFriendRow"])
            compare(findChild(view, name).chevronName, "chevron.left")
    }
}
