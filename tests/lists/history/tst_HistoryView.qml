import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
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
        history.clearHistory()
        history.setCallsPossible(true)
        service.acknowledgeCallFailure()
        defaults.setString("prefix", "#31#")
        defaults.setBool("saveToHistory", true)
    }

    function showHistory() {
        const view = createTemporaryObject(historyComponent, testCase, { vm: history.newModel() })
        verify(view)
        waitForRendering(view)
        return view
    }

    // The row shown at `index` (rows waiting for reuse are hidden).
    function row(view, index) {
        const list = findChild(view, "historyList")
        list.forceLayout()
        const cells = list.contentItem.children
        for (let i = 0; i < cells.length; ++i) {
            if (!cells[i].visible)
                continue
            const found = findChild(cells[i], "historyRow_" + index)
            if (found)
                return found
        }
        return null
    }

    function typeSearch(view, text) {
        const field = findChild(view, "searchField")
        mouseClick(field)
        verify(field.activeFocus)
        for (const c of text)
            keyClick(c)
    }

    function listedTelephones(view) {
        const out = []
        for (let i = 0; i < view.vm.filteredContacts.count; ++i)
            out.push(findChild(row(view, i), "numberLine").text)
        return out
    }

    function test_emptyHistory() {
        const view = showHistory()
        const empty = findChild(view, "emptyState")
        verify(empty.visible)
        compare(findChild(view, "emptyTitle").text, "No history calls to show")
        compare(findChild(view, "emptyHint").text,
                "Remember: don't forget to switch on \"Auto Save to History\" in settings to save your calls.")
        compare(findChild(view, "countLabel").text, "Total Contacts: 0")
        verify(!findChild(view, "historyList").visible)

        // The first recorded call replaces the empty state with the list.
        history.addRecord("0611", true, "Anna", "Smith")
        tryCompare(findChild(view, "countLabel"), "text", "Total Contacts: 1")
        verify(!empty.visible)
        verify(findChild(view, "historyList").visible)
    }

    function test_rowsShowPlaceholdersAndPrivacy() {
        history.addRecord("0611", true, "Anna", "Smith")
        history.addRecord("0622", false)
        history.addRecord("0633", false, "", "")
        const view = showHistory()
        compare(findChild(view, "countLabel").text, "Total Contacts: 3")

        const named = row(view, 0)
        compare(findChild(named, "nameLine").text, "Smith Anna")
        compare(findChild(named, "numberLine").text, "0611")
        verify(/^\d{4}-\d\d-\d\d \d\d:\d\d:\d\d$/.test(findChild(named, "timeLine").text))
        compare(findChild(named, "privacyMark").text, "Hidden")

        // Names never stored read N/A; names stored empty stay empty.
        const nameless = row(view, 1)
        compare(findChild(nameless, "nameLine").text, "N/A N/A")
        compare(findChild(nameless, "privacyMark").text, "Normal Dialing")
        compare(findChild(row(view, 2), "nameLine").text, " ")
    }

    function test_searchFiltersAndCancelRestores() {
        history.addRecord("0611", false, "Anna", "Smith")
        history.addRecord("0622", false, "Bob", "Hannah")
        const view = showHistory()
        typeSearch(view, "ANNx")
        compare(view.vm.searchText, "ANNx")
        verify(findChild(view, "emptyState").visible)

        const cancel = findChild(view, "searchCancelButton")
        mouseClick(cancel)
        compare(findChild(view, "searchField").text, "")
        verify(!view.isInputActive)
        verify(!cancel.visible)
        compare(listedTelephones(view), ["0611", "0622"])
    }

    function test_swipeDeleteUnderSearchRemovesTheListedRecord() {
        history.addRecord("0611", false, "Anna", "Smith")
        history.addRecord("0622", false, "Bob", "Stone")
        history.addRecord("0633", false, "Hannah", "Lee")
        history.addRecord("0644", false, "Carl", "Anderson")
        const view = showHistory()
        typeSearch(view, "an")
        compare(listedTelephones(view), ["0611", "0633", "0644"])

        // Swipe the second listed row (store row 2) to the left and delete it.
        const target = row(view, 1)
        compare(findChild(target, "numberLine").text, "0633")
        mouseDrag(target, target.width - 20, target.height / 2, -target.width / 2, 0)
        tryCompare(target.swipe, "position", -1)
        const deleteButton = findChild(target, "swipeDeleteButton")
        verify(deleteButton)
        compare(deleteButton.Accessible.name, "Delete")
        mouseClick(deleteButton)

        compare(listedTelephones(view), ["0611", "0644"])
        compare(history.storedRows().map(r => r.telephone), ["0611", "0622", "0644"])
    }

    function test_editModeDeletesTheTappedRowOnly() {
        history.addRecord("0611", false, "Anna", "Smith")
        history.addRecord("0622", false, "Bob", "Stone")
        history.addRecord("0633", false, "Hannah", "Lee")
        const view = showHistory()
        const edit = findChild(view, "editButton")
        mouseClick(edit)
        compare(edit.text, "Done")
        const control = findChild(row(view, 2).parent, "editDeleteControl")
        verify(control.visible)
        compare(control.Accessible.name, "Delete Lee Hannah")

        // In edit mode a tap selects the record but asks nothing.
        mouseClick(row(view, 1))
        compare(view.vm.selectedContact.telephone, "0622")
        verify(!view.showingCallAlert)
        verify(!findChild(view, "callPrivacyDialog").visible)

        mouseClick(control)
        tryCompare(row(view, 2).swipe, "position", -1)
        tryCompare(row(view, 2).swipe, "complete", true)
        mouseClick(findChild(row(view, 2), "swipeDeleteButton"))
        compare(history.storedRows().map(r => r.telephone), ["0611", "0622"])

        mouseClick(edit)
        compare(edit.text, "Edit")
        verify(!findChild(row(view, 0).parent, "editDeleteControl").visible)
    }

    // The road of a call from the history: a tap, "Private dialing", the
    // request to the telephony, the observer seeing it, a new history row
    // under the record's name.
    function test_callFromHistoryIsRecordedUnderTheSameName() {
        history.addRecord("0611", false, "Anna", "Smith")
        history.addRecord("0622", false)
        const main = createTemporaryObject(mainViewComponent, testCase)
        main.vm.selectedTab = 2
        const view = findChild(main, "historyView")
        verify(view)
        waitForRendering(view)

        mouseClick(row(view, 0))
        verify(view.showingCallAlert)
        const dialog = findChild(view, "callPrivacyDialog")
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, "privateDialingButton"))
        compare(history.lastOpened(), "#31#0611")
        tryCompare(view, "showingCallAlert", false)

        history.report("history-1", true, false, false)
        compare(history.storedRows()[2], { firstName: "Anna", lastName: "Smith", telephone: "0611", callHidden: true })
        tryCompare(findChild(view, "countLabel"), "text", "Total Contacts: 3")

        // A record without names calls normally and is stored with empty names.
        mouseClick(row(view, 1))
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, "normalDialingButton"))
        compare(history.lastOpened(), "0622")
        history.report("history-2", true, false, false)
        const after = history.storedRows()[3]
        compare([after.firstName, after.telephone, after.callHidden], ["", "0622", false])

        // With saving switched off the next call leaves the file as it is.
        defaults.setBool("saveToHistory", false)
        tryCompare(dialog, "visible", false)
        mouseClick(row(view, 0))
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, "privateDialingButton"))
        compare(service.pendingCallSaveToHistory, false)
        history.report("history-3", true, false, false)
        compare(history.storedRows().length, 4)
    }

    function test_cancelAndFailedCallsStaySilent() {
        history.addRecord("0611", false, "Anna", "Smith")
        const view = showHistory()
        const dialog = findChild(view, "callPrivacyDialog")

        mouseClick(row(view, 0))
        tryCompare(dialog, "opened", true)
        const before = history.openedCount()
        mouseClick(findChild(dialog, "cancelButton"))
        tryCompare(view, "showingCallAlert", false)
        compare(history.openedCount(), before)

        // A phone that cannot call: the flag goes up, nothing is shown.
        history.setCallsPossible(false)
        mouseClick(row(view, 0))
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, "privateDialingButton"))
        verify(service.callFailed)
        tryCompare(dialog, "visible", false)
        // No alert of any kind comes up.
        const overlay = view.Overlay.overlay
        for (let i = 0; i < overlay.children.length; ++i)
            verify(!overlay.children[i].visible, "something is shown over the list")
        verify(!view.showingCallAlert)
    }
}
