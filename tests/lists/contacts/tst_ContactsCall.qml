import QtQuick
import QtTest
import Quieton

// The whole road of one call from the contacts tab of the main screen: a
// tapped contact, "Private dialing", the telephony's report, and a history
// row that carries the contact's name.
TestCase {
    id: testCase
    name: "ContactsCall"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { anchors.fill: parent }
    }

    function test_privateCallToAContactEndsUpInTheHistory() {
        driver.writeBook([["Anna", "Smith", "0612345678", "0700"], ["Bob", "Brown", "0799"]])
        UserDefaultsService.setString("prefix", "#31#")
        UserDefaultsService.setBool("saveToHistory", true)
        UserDefaultsService.setInteger("autoSortBy", 1)
        Service.callFailed = false
        driver.setCallsPossible(true)

        const main = createTemporaryObject(mainViewComponent, testCase)
        verify(main)
        main.vm.selectedTab = 1
        const view = findChild(main, "contactsView")
        verify(view)
        tryVerify(() => findChild(view, "contactRow1") !== null, 5000)
        const before = driver.storedRows().length

        mouseClick(findChild(view, "contactRow0"))
        const dialog = findChild(view, "callPrivacyDialog")
        tryCompare(dialog, "opened", true)
        mouseClick(findChild(dialog.footer, "privateDialingButton"))
        compare(driver.lastOpened(), "#31#0612345678")
        verify(Service.callStartedFromApp)
        verify(!view.showingErrorDialNumberAlert)

        driver.report("contact-1", true, false, false)
        verify(!Service.callStartedFromApp)
        const rows = driver.storedRows()
        compare(rows.length, before + 1)
        const row = rows[rows.length - 1]
        compare(row.firstName, "Anna")
        compare(row.lastName, "Smith")
        compare(row.telephone, "0612345678")
        compare(row.callHidden, true)
    }
}
