import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Lists
import Quieton.App

// The contacts and history screens' wiring: listing, search, sort, delete, and calls into the history.
TestCase {
    id: testCase
    name: "ListsView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: viewComponent
        ContactsView { anchors.fill: parent }
    }
    Component {
        id: historyComponent
        HistoryView { anchors.fill: parent }
    }
    Component {
        id: mainViewComponent
        MainView { app: testApp; anchors.fill: parent }
    }

    SignalSpy {
        id: notices
        target: service
        signalName: "notice"
    }

    function init() {
        defaults.setInteger("autoSortBy", 0)
        defaults.setBool("comparator", true)
        service.acknowledgeCallFailure()
        driver.setCallsPossible(true)
        driver.clearHistory()
        defaults.setString("prefix", "#31#")
        defaults.setBool("saveToHistory", true)
    }

    // A screen shown once, with the whole book read (or refused).
    function shownView(people, readable = true) {
        driver.writeBook(people, readable)
        const view = createTemporaryObject(viewComponent, testCase, { vm: testApp.createContactsViewModel(testCase) })
        view.appeared()
        tryVerify(() => view.vm.visibleContacts.count === people.length, 5000)
        waitForItemPolished(findChild(view, "contactsList"))
        return view
    }

    function rowTexts(view) {
        const list = findChild(view, "contactsList")
        return Array.from({ length: list.count }, (_, i) => list.itemAtIndex(i).firstName)
    }

    // The history screen over these records, each [telephone, first, last].
    function showHistory(records) {
        for (const [telephone, first, last] of records)
            driver.addRecord(telephone, false, first, last)
        const view = createTemporaryObject(historyComponent, testCase, { vm: testApp.createHistoryViewModel(testCase) })
        waitForRendering(view)
        return view
    }

    function row(view, index) {
        const list = findChild(view, "historyList")
        list.forceLayout()
        return list.itemAtIndex(index)
    }

    function listedTelephones(view) {
        return Array.from({ length: view.vm.filteredContacts.count }, (_, i) => findChild(row(view, i), "numberLine").text)
    }

    // A popup of `view`, made when first asked for.
    function popup(view, name) {
        tryVerify(() => findChild(view, name), 5000, name)
        return findChild(view, name)
    }

    // Taps `item` and answers the call privacy question with `button`.
    function answer(view, item, button) {
        mouseClick(item)
        const dialog = popup(view, "callPrivacyDialog")
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog, button))
        tryCompare(dialog, "visible", false)
    }

    function test_listAndSortControls() {
        const view = shownView([["Bea", "Young", "03"], ["Al", "Zane", "01"], ["Cy", "Xu", "02", "04"]])
        compare(findChild(view, "totalContacts").text, "Total Contacts: 3")
        compare(rowTexts(view), ["Bea", "Al", "Cy"])

        mouseClick(findChild(view, "sortSegment2"))
        compare(rowTexts(view), ["Al", "Cy", "Bea"])
        mouseClick(findChild(view, "sortDirectionButton"))
        compare(rowTexts(view), ["Bea", "Cy", "Al"])
    }

    function test_emptyAndUnreadableBooks() {
        const empty = shownView([])
        verify(findChild(empty, "noContactsFound").visible)
        verify(!findChild(empty, "enableInSettings").visible)

        const view = shownView([], false)
        const link = findChild(view, "enableInSettings")
        tryVerify(() => link.visible, 5000)
        verify(!findChild(view, "noContactsFound").visible)
        mouseClick(link)
        verify(driver.openedUrl().startsWith("file:///"))
    }

    // A call without a number is refused at once: the dialling-error alert, no notice, no request.
    function test_contactWithoutANumberShowsTheErrorAlert() {
        const view = shownView([["No", "Number"]])
        const opened = driver.openedCount()
        notices.clear()
        answer(view, findChild(view, "contactRow0"), "normalDialingButton")
        verify(service.callFailed)
        tryCompare(popup(view, "dialErrorAlert"), "opened", true)
        compare(driver.openedCount(), opened)
        compare(notices.count, 0)
    }

    // Cancel asks nothing; "Private dialing" calls and records the call under the contact's name.
    function test_privateCallToAContactEndsUpInTheHistory() {
        driver.writeBook([["Anna", "Smith", "0612345678", "0700"], ["Bob", "Brown", "0799"]])
        const main = createTemporaryObject(mainViewComponent, testCase)
        main.vm.selectedTab = 1
        tryVerify(() => main.shownScreen !== null)
        const view = findChild(main, "contactsView")
        tryVerify(() => findChild(view, "contactRow1") !== null, 5000)
        compare(findChild(view, "sortPicker").currentIndex, 0)
        const asked = driver.lastAsked()
        answer(view, findChild(view, "contactRow0"), "cancelButton")
        compare(driver.lastAsked(), asked)

        answer(view, findChild(view, "contactRow0"), "privateDialingButton")
        compare(driver.lastOpened(), "#31#0612345678")
        driver.report("contact-1", true, false, false)
        compare(driver.storedRows(), [{ firstName: "Anna", lastName: "Smith", telephone: "0612345678", callHidden: true }])
    }

    function test_emptyStateThenRows() {
        const view = showHistory([])
        const empty = findChild(view, "emptyState")
        verify(empty.visible)

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
        compare(findChild(row(view, 2), "nameLine").text, " ")
    }

    // In edit mode a tap selects and asks nothing; the delete control and a swipe remove the listed row.
    function test_editModeDeletesTheListedRowUnderSearch() {
        const view = showHistory([["0611", "Anna", "Smith"], ["0622", "Bob", "Stone"], ["0633", "Hannah", "Lee"],
                                  ["0644", "Carl", "Anderson"]])
        mouseClick(findChild(view, "searchField"))
        for (const c of "AN")
            keyClick(c)
        compare(listedTelephones(view), ["0611", "0633", "0644"])
        const edit = findChild(view, "editButton")
        mouseClick(edit)
        mouseClick(row(view, 2))
        compare(view.vm.selectedContact.telephone, "0644")
        verify(!view.showingCallAlert)

        mouseClick(findChild(row(view, 1), "editDeleteControl"))
        verify(row(view, 1).open)
        mouseClick(findChild(row(view, 1), "swipeDeleteButton"))
        compare(listedTelephones(view), ["0611", "0644"])
        verify(!row(view, 1).open) // the next record comes into the row closed
        mouseClick(edit)
        verify(!findChild(row(view, 0), "editDeleteControl").visible)

        // A swipe to the left past half the delete button leaves it open.
        const first = row(view, 0)
        mouseDrag(first, first.width - 10, first.height / 2, -first.deleteWidth, 0)
        tryCompare(first, "x", -first.deleteWidth)
        mouseClick(findChild(first, "swipeDeleteButton"))
        compare(listedTelephones(view), ["0644"])

        mouseClick(findChild(view, "searchCancelButton"))
        compare(findChild(view, "searchField").text, "")
        compare(listedTelephones(view), ["0622", "0644"])
    }

    // A call from the history tab is recorded under the record's names; a phone that cannot call shows nothing.
    function test_callFromHistory() {
        driver.addRecord("0611", false, "Anna", "Smith")
        driver.addRecord("0622", false)
        const main = createTemporaryObject(mainViewComponent, testCase)
        main.vm.selectedTab = 2
        tryVerify(() => main.shownScreen !== null)
        const view = findChild(main, "historyView")
        waitForRendering(view)
        answer(view, row(view, 0), "privateDialingButton")
        compare(driver.lastOpened(), "#31#0611")
        driver.report("history-1", true, false, false)
        compare(driver.storedRows()[2], { firstName: "Anna", lastName: "Smith", telephone: "0611", callHidden: true })

        answer(view, row(view, 1), "normalDialingButton")
        compare(driver.lastOpened(), "0622")
        driver.report("history-2", true, false, false)
        const after = driver.storedRows()[3]
        compare([after.firstName, after.telephone, after.callHidden], ["", "0622", false])

        driver.setCallsPossible(false)
        answer(view, row(view, 0), "privateDialingButton")
        verify(service.callFailed)
        const overlay = view.Overlay.overlay
        for (let i = 0; i < overlay.children.length; ++i)
            verify(!overlay.children[i].visible, "something is shown over the list")
        verify(!view.showingCallAlert)
    }

    // A screen reader meets the rows shown, none kept for reuse (after a search too); its press asks as a tap.
    function test_screenReaderMeetsTheShownRows() {
        const people = [["Abe", "Stone", "0622"]]
        for (let i = 0; i < 14; ++i)
            people.push(["Ann" + i, "Lee", "07" + i])
        const contacts = shownView(people)
        const history = showHistory(people.map(([first, last, telephone]) => [telephone, first, last]))
        for (const [view, listName, abe] of [[contacts, "contactsList", "Abe Stone, 0622"],
                                             [history, "historyList", "Stone Abe, 0622, "]]) {
            const list = findChild(view, listName)
            tryCompare(list, "count", people.length)
            view.anchors.fill = undefined
            view.height = testCase.height / 2
            for (const search of ["", "abe"]) {
                view.vm.searchText = search
                waitForItemPolished(list)
                const shown = []
                for (let i = 0; i < list.count; ++i) {
                    const row = list.itemAtIndex(i)
                    if (row && row.y < list.contentY + list.height && row.y + row.height > list.contentY)
                        shown.push(row.Accessible.name)
                }
                verify(shown.length < people.length && shown[0].startsWith(abe), shown)
                compare(screenReader.rows(list), shown)
                verify(screenReader.act(list.itemAtIndex(0)))
                const dialog = popup(view, "callPrivacyDialog")
                tryCompare(dialog, "opened", true)
                compare(view.vm.selectedContact.telephone, "0622")
                dialog.reject()
                tryCompare(dialog, "visible", false)
            }
        }
    }
}
