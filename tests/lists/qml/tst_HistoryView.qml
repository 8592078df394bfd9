import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Lists
import Quieton.App

// The history tab over the app's history file: what it lists, deleting
// records (also under a search), and calling a listed number again.
TestCase {
    id: testCase
    name: "HistoryView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: historyComponent
        HistoryView { anchors.fill: parent }
    }
    Component {
        id: mainViewComponent
        MainView { app: testApp; anchors.fill: parent }
    }

    function init() {
        driver.clearHistory()
        driver.setCallsPossible(true)
        service.acknowledgeCallFailure()
        defaults.setString("prefix", "#31#")
        defaults.setBool("saveToHistory", true)
    }

    // The history screen over these records, each [telephone, first, last].
    function showHistory(records) {
        for (const [telephone, first, last] of records)
            driver.addRecord(telephone, false, first, last)
        const view = createTemporaryObject(historyComponent, testCase, { vm: driver.newHistoryModel() })
        waitForRendering(view)
        return view
    }

    // The row shown at `index` (rows waiting for reuse are hidden).
    function row(view, index) {
        const list = findChild(view, "historyList")
        list.forceLayout()
        const cells = list.contentItem.children
        for (let i = 0; i < cells.length; ++i) {
            const found = cells[i].visible ? findChild(cells[i], "historyRow_" + index) : null
            if (found)
                return found
        }
        return null
    }

    function listedTelephones(view) {
        const out = []
        for (let i = 0; i < view.vm.filteredContacts.count; ++i)
            out.push(findChild(row(view, i), "numberLine").text)
        return out
    }

    // Taps the row at `index` and answers the call privacy question with `button`.
    function answer(view, index, button) {
        mouseClick(row(view, index))
        const dialog = findChild(view, "callPrivacyDialog")
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, button))
        tryCompare(dialog, "visible", false)
    }

    function test_emptyStateThenRows() {
        const view = showHistory([])
        const empty = findChild(view, "emptyState")
        verify(empty.visible)
        compare(findChild(view, "emptyTitle").text, "No history calls to show")
        compare(findChild(view, "emptyHint").text,
                "Remember: don't forget to switch on \"Auto Save to History\" in settings to save your calls.")
        compare(findChild(view, "countLabel").text, "Total Contacts: 0")
        verify(!findChild(view, "historyList").visible)

        // Names never stored read N/A; names stored empty stay empty.
        driver.addRecord("0611", true, "Anna", "Smith")
        driver.addRecord("0622", false)
        driver.addRecord("0633", false, "", "")
        tryCompare(findChild(view, "countLabel"), "text", "Total Contacts: 3")
        verify(!empty.visible)
        const named = row(view, 0)
        compare(findChild(named, "nameLine").text, "Smith Anna")
        compare(findChild(named, "numberLine").text, "0611")
        verify(/^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d$/.test(findChild(named, "timeLine").text))
        compare(findChild(named, "privacyMark").text, "Hidden")
        compare(findChild(row(view, 1), "nameLine").text, "N/A N/A")
        compare(findChild(row(view, 1), "privacyMark").text, "Normal Dialing")
        compare(findChild(row(view, 2), "nameLine").text, " ")
    }

    // A swipe deletes the listed row, not the store's row of that number;
    // cancelling the search lists the rest again.
    function test_swipeDeleteUnderSearchAndCancel() {
        const view = showHistory([["0611", "Anna", "Smith"], ["0622", "Bob", "Stone"], ["0633", "Hannah", "Lee"],
                                  ["0644", "Carl", "Anderson"]])
        mouseClick(findChild(view, "searchField"))
        for (const c of "AN")
            keyClick(c)
        compare(view.vm.searchText, "AN")
        compare(listedTelephones(view), ["0611", "0633", "0644"])
        const target = row(view, 1)
        mouseDrag(target, target.width - 20, target.height / 2, -target.width / 2, 0)
        tryCompare(target.swipe, "position", -1)
        mouseClick(findChild(target, "swipeDeleteButton"))
        compare(listedTelephones(view), ["0611", "0644"])

        const cancel = findChild(view, "searchCancelButton")
        mouseClick(cancel)
        compare(findChild(view, "searchField").text, "")
        verify(!view.isInputActive)
        verify(!cancel.visible)
        compare(listedTelephones(view), ["0611", "0622", "0644"])
    }

    function test_editModeDeletesTheTappedRowOnly() {
        const view = showHistory([["0611", "Anna", "Smith"], ["0622", "Bob", "Stone"], ["0633", "Hannah", "Lee"]])
        const edit = findChild(view, "editButton")
        mouseClick(edit)
        compare(edit.text, "Done")
        const control = findChild(row(view, 2).parent, "editDeleteControl")
        compare(control.Accessible.name, "Delete Lee Hannah")
        // In edit mode a tap selects the record but asks nothing.
        mouseClick(row(view, 1))
        compare(view.vm.selectedContact.telephone, "0622")
        verify(!findChild(view, "callPrivacyDialog").visible)

        mouseClick(control)
        tryCompare(row(view, 2).swipe, "complete", true)
        mouseClick(findChild(row(view, 2), "swipeDeleteButton"))
        compare(driver.storedRows().map(r => r.telephone), ["0611", "0622"])
        mouseClick(edit)
        compare(edit.text, "Edit")
        verify(!findChild(row(view, 0).parent, "editDeleteControl").visible)
    }

    // From the history tab of the main screen: cancel calls nothing; a call
    // is recorded under the record's name, or with empty names.
    function test_callFromHistoryIsRecordedUnderTheSameName() {
        driver.addRecord("0611", false, "Anna", "Smith")
        driver.addRecord("0622", false)
        const main = createTemporaryObject(mainViewComponent, testCase)
        main.vm.selectedTab = 2
        const view = findChild(main, "historyView")
        waitForRendering(view)
        const before = driver.openedCount()
        answer(view, 0, "cancelButton")
        verify(!view.showingCallAlert)
        compare(driver.openedCount(), before)

        answer(view, 0, "privateDialingButton")
        compare(driver.lastOpened(), "#31#0611")
        verify(!view.showingCallAlert)
        driver.report("history-1", true, false, false)
        compare(driver.storedRows()[2], { firstName: "Anna", lastName: "Smith", telephone: "0611", callHidden: true })
        tryCompare(findChild(view, "countLabel"), "text", "Total Contacts: 3")

        answer(view, 1, "normalDialingButton")
        compare(driver.lastOpened(), "0622")
        driver.report("history-2", true, false, false)
        const after = driver.storedRows()[3]
        compare([after.firstName, after.telephone, after.callHidden], ["", "0622", false])
    }

    // A phone that cannot call: the flag goes up, nothing is shown.
    function test_failedCallStaysSilent() {
        const view = showHistory([["0611", "Anna", "Smith"]])
        driver.setCallsPossible(false)
        answer(view, 0, "privateDialingButton")
        verify(service.callFailed)
        const overlay = view.Overlay.overlay
        for (let i = 0; i < overlay.children.length; ++i)
            verify(!overlay.children[i].visible, "something is shown over the list")
        verify(!view.showingCallAlert)
    }
}
