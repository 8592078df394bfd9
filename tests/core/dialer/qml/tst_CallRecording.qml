import QtQuick
import QtTest
import Quieton

// The whole road of one call: typed on the dialler of the main screen, asked
// of the telephony, seen dialling by the observer, stored in the history file.
TestCase {
    id: testCase
    name: "CallRecording"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { anchors.fill: parent }
    }

    function test_dialledNumberEndsUpInTheHistoryFile() {
        UserDefaultsService.setBool("hiddenNumber", true)
        UserDefaultsService.setBool("saveToHistory", true)
        Service.callFailed = false
        phone.setCallsPossible(true)

        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        const before = phone.storedRows().length

        for (const c of "0612")
            mouseClick(findChild(dialer, "key" + c))
        mouseClick(findChild(dialer, "callButton"))
        compare(phone.lastOpened(), "#31#0612")
        phone.report("road-1", true, false, false)
        phone.report("road-1", true, true, false)
        phone.report("road-1", true, true, true)

        const rows = phone.storedRows()
        compare(rows.length, before + 1)
        const row = rows[rows.length - 1]
        compare(row.telephone, "0612")
        compare(row.callHidden, true)
        compare(row.firstName, "")
    }

    function test_noRecordOnceTheMainScreenIsGone() {
        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        mouseClick(findChild(dialer, "key1"))
        mouseClick(findChild(dialer, "callButton"))
        const before = phone.storedRows().length
        main.destroy()
        wait(0)
        phone.report("road-2", true, false, false)
        compare(phone.storedRows().length, before)
    }
}
