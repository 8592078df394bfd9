import QtQuick
import QtTest
import Quieton.Lists
import Quieton.App

// The contacts screen's wiring: list, search, sort controls, the three body
// states, the dialling-error alert, and a call from the contacts tab of the
// main screen to a history row.
TestCase {
    id: testCase
    name: "ContactsView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: viewComponent
        ContactsView { anchors.fill: parent }
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
    }

    // A screen shown once, with the whole book read.
    function shownView(people) {
        driver.writeBook(people)
        const view = createTemporaryObject(viewComponent, testCase, { vm: driver.newContactsModel() })
        view.appeared()
        tryVerify(() => view.vm.visibleContacts.count === people.length, 5000)
        waitForItemPolished(findChild(view, "contactsList"))
        return view
    }

    function rowTexts(view) {
        const list = findChild(view, "contactsList")
        const names = []
        for (let i = 0; i < list.count; ++i)
            names.push(findChild(list, "contactRow" + i).firstName)
        return names
    }

    // Taps a row and answers the call privacy question with `button`.
    function answer(view, row, button) {
        mouseClick(findChild(view, row))
        const dialog = findChild(view, "callPrivacyDialog")
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog.footer, button))
        tryCompare(dialog, "visible", false)
    }

    function test_listAndSortControls() {
        const view = shownView([["Bea", "Young", "03"], ["Al", "Zane", "01"], ["Cy", "Xu", "02", "04"]])
        compare(findChild(view, "totalContacts").text, "Total Contacts: 3")
        compare(rowTexts(view), ["Bea", "Al", "Cy"])
        const row = findChild(view, "contactRow2")
        compare([row.lastName, row.telephone], ["Xu", "02"])
        verify(!findChild(view, "noContactsFound").visible)
        verify(!findChild(view, "enableInSettings").visible)

        mouseClick(findChild(view, "sortSegment2"))
        compare(view.vm.sortIndexSelected, 2)
        compare(rowTexts(view), ["Al", "Cy", "Bea"])
        const direction = findChild(view, "sortDirectionButton")
        compare(direction.Accessible.name, "Sort descending")
        mouseClick(direction)
        compare(rowTexts(view), ["Bea", "Cy", "Al"])
        // The stored key wins when the screen is shown again.
        view.appeared()
        compare(findChild(view, "sortSegment0").selected, true)
        compare(rowTexts(view), ["Cy", "Bea", "Al"])
    }

    // A search from far down the list shows its first matches.
    function test_searchAndCancel() {
        const people = []
        for (let i = 0; i < 300; ++i)
            people.push(["Person" + i, "Family", "06" + i])
        const view = shownView(people)
        const list = findChild(view, "contactsList")
        const cancel = findChild(view, "cancelSearchButton")
        verify(!cancel.visible)
        list.positionViewAtEnd()
        waitForItemPolished(list)
        mouseClick(findChild(view, "searchField"))
        keyClick("9")
        waitForItemPolished(list)
        verify(list.atYBeginning)
        compare(findChild(list, "contactRow0").firstName, "Person9")
        keyClick("x")
        compare(view.vm.searchText, "9x")
        compare(findChild(view, "totalContacts").text, "Total Contacts: 0")
        verify(findChild(view, "noContactsFound").visible)
        verify(!list.visible)

        mouseClick(cancel)
        compare(findChild(view, "searchField").text, "")
        verify(!view.isInputContactsActive)
        verify(!cancel.visible)
        compare(list.count, 300)
    }

    function test_emptyAndUnreadableBooks() {
        const empty = shownView([])
        verify(findChild(empty, "noContactsFound").visible)
        verify(!findChild(empty, "enableInSettings").visible)

        driver.writeBook([], false)
        const view = createTemporaryObject(viewComponent, testCase, { vm: driver.newContactsModel() })
        view.appeared()
        const link = findChild(view, "enableInSettings")
        tryVerify(() => link.visible, 5000)
        verify(!findChild(view, "noContactsFound").visible)
        verify(!findChild(view, "contactsList").visible)
        compare(link.Accessible.name, "To view contacts, enable it in settings.")
        mouseClick(link)
        verify(driver.openedUrl().startsWith("file:///"))
    }

    // The telephony refuses a call without a number at once, as the real
    // ones do: the dialling-error alert, never a notice, never a request.
    function test_contactWithoutANumberShowsTheErrorAlert_data() {
        return [{ tag: "private", button: "privateDialingButton" }, { tag: "normal", button: "normalDialingButton" }]
    }
    function test_contactWithoutANumberShowsTheErrorAlert(data) {
        defaults.setString("prefix", "#31#")
        const view = shownView([["No", "Number"]])
        const opened = driver.openedCount()
        notices.clear()
        answer(view, "contactRow0", data.button)
        verify(service.callFailed)
        const alert = findChild(view, "dialErrorAlert")
        tryCompare(alert, "opened", true)
        compare(driver.openedCount(), opened)
        compare(notices.count, 0)
        mouseClick(alert.footer.itemAt(0))
        tryCompare(alert, "visible", false)
        verify(!service.callFailed)
        verify(!view.showingErrorDialNumberAlert)
    }

    // Cancel asks nothing of the telephony; "Private dialing" calls and the
    // call is recorded under the contact's name.
    function test_privateCallToAContactEndsUpInTheHistory() {
        driver.writeBook([["Anna", "Smith", "0612345678", "0700"], ["Bob", "Brown", "0799"]])
        defaults.setString("prefix", "#31#")
        defaults.setBool("saveToHistory", true)
        defaults.setInteger("autoSortBy", 1)
        const main = createTemporaryObject(mainViewComponent, testCase)
        main.vm.selectedTab = 1
        const view = findChild(main, "contactsView")
        tryVerify(() => findChild(view, "contactRow1") !== null, 5000)
        const before = driver.storedRows().length
        const asked = driver.lastAsked()
        answer(view, "contactRow0", "cancelButton")
        compare(view.vm.selectedContact.firstName, "Anna")
        verify(!view.showingCallAlert)
        compare(driver.lastAsked(), asked)

        answer(view, "contactRow0", "privateDialingButton")
        compare(driver.lastOpened(), "#31#0612345678")
        verify(!view.showingErrorDialNumberAlert)
        driver.report("contact-1", true, false, false)
        const rows = driver.storedRows()
        compare(rows.length, before + 1)
        compare(rows[before], { firstName: "Anna", lastName: "Smith", telephone: "0612345678", callHidden: true })
    }
}
