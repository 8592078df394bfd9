import QtQuick
import QtTest
import Quieton

// One call from end to end: typed on the dialler, confirmed, placed on the
// simulated modem through ModemManager, seen dialling by the call observer,
// and stored in the history file.
TestCase {
    id: testCase
    name: "CallRoad"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { anchors.fill: parent }
    }

    CallConfirmationDialog { id: confirmation }

    HistoryListModel { id: history }

    function test_typedPrivateCallEndsUpAsAHistoryRow() {
        verify(modemRunning)
        UserDefaultsService.setString("prefix", "#31#")
        UserDefaultsService.setBool("hiddenNumber", true)
        UserDefaultsService.setBool("saveToHistory", true)
        Service.callFailed = false

        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        verify(dialer)
        waitForRendering(dialer)
        const before = history.count
        const modemCallsBefore = simulatedModem.createdNumbers().length

        for (const c of "0687654321")
            mouseClick(findChild(dialer, "key" + c))
        mouseClick(findChild(dialer, "callButton"))
        tryCompare(confirmation, "opened", true, 5000)
        compare(findChild(confirmation.contentItem, "dialString").text, "#31#0687654321")
        mouseClick(findChild(confirmation.footer, "callButton"))

        tryVerify(() => simulatedModem.createdNumbers().length === modemCallsBefore + 1, 5000)
        compare(simulatedModem.createdNumbers()[modemCallsBefore], "#31#0687654321")
        // The modem reports the call dialling; the observer records it once.
        tryCompare(history, "count", before + 1, 5000)
        const row = history.index(history.count - 1, 0)
        compare(history.data(row, HistoryListModel.TelephoneRole), "0687654321")
        compare(history.data(row, HistoryListModel.CallHiddenRole), true)
        verify(!Service.callStartedFromApp)
        compare(Service.callFailed, false)
        // Ringing, answered and hung up by the simulator: still one row.
        wait(1200)
        compare(history.count, before + 1)
    }
}
