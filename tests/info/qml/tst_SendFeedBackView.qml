import QtQuick
import QtTest
import Quieton

TestCase {
    id: testCase
    name: "SendFeedBackView"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: feedbackComponent
        SendFeedBackView { anchors.fill: parent }
    }
    Component {
        id: spyComponent
        SignalSpy { }
    }

    function createFeedback() {
        const view = createTemporaryObject(feedbackComponent, testCase)
        verify(view)
        waitForRendering(view)
        return view
    }

    function init() {
        desktop.clear()
        desktop.setRightToLeft(false)
    }

    function test_textRowsAndStartingState() {
        const view = createFeedback()
        compare(findChild(view, "feedbackText").text,
                "Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.")
        compare(findChild(view, "leaveAFeedbackRow").caption, "Leave a Feedback")
        compare(findChild(view, "suggestAFeatureRow").caption, "Suggest a Feature")
        compare(findChild(view, "reportAProblemRow").caption, "Report a Problem")
        compare(findChild(view, "shareWithFriendRow").caption, "Share with Friend")
        // The rows in their order, top to bottom.
        verify(findChild(view, "leaveAFeedbackRow").y < findChild(view, "suggestAFeatureRow").y)
        verify(findChild(view, "suggestAFeatureRow").y < findChild(view, "reportAProblemRow").y)
        verify(findChild(view, "reportAProblemRow").y < findChild(view, "shareWithFriendRow").y)
        verify(!view.isLeaveAFeedBackSheetPresented)
        verify(!view.isReportAProblemSheetPresented)
        verify(!view.isSuggestAFeaturePresented)
        verify(!view.isClickedVoteButton)
        verify(!view.showingChooseRateAlert)
        verify(view.vm.service === Service)
        verify(view.vm.defaultsService === UserDefaultsService)
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
        tryCompare(view, data.flag, false)
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

    function test_backControlAsksToClose() {
        const view = createFeedback()
        const back = findChild(view, "backButton")
        compare(back.Accessible.name, "Back")
        const dismissed = createTemporaryObject(spyComponent, testCase, { target: view, signalName: "dismissRequested" })
        mouseClick(back)
        compare(dismissed.count, 1)
    }

    function test_chevronsPointTheWayTheLayoutReads() {
        const rows = ["leaveAFeedbackRow", "suggestAFeatureRow", "reportAProblemRow", "shareWithFriendRow"]
        let view = createFeedback()
        for (const name of rows)
            compare(findChild(view, name).chevronName, "chevron.right")
        desktop.setRightToLeft(true)
        view = createFeedback()
        for (const name of rows)
            compare(findChild(view, name).chevronName, "chevron.left")
    }
}
