import QtQuick
import QtQuick.Controls
import QtTest
import Quieton

TestCase {
    id: testCase
    name: "CallConfirmationDialog"
    width: 400
    height: 800
    when: windowShown
    visible: true

    CallConfirmationDialog { id: dialog }

    SignalSpy {
        id: notices
        target: Service
        signalName: "notice"
    }

    function placeCall(number, hidden) {
        Service.makeCall(number, hidden)
        tryCompare(dialog, "opened", true, 5000)
    }

    function button(name) {
        const found = findChild(dialog.footer, name)
        verify(found, name)
        return found
    }

    function initTestCase() {
        verify(modemRunning)
        UserDefaultsService.setString("prefix", "#31#")
    }

    function cleanup() {
        CallConfirmation.cancel()
        tryCompare(dialog, "visible", false)
    }

    function test_showsTheFullDialString() {
        placeCall("0612345678", true)
        compare(findChild(dialog.contentItem, "dialString").text, "#31#0612345678")
        compare(button("callButton").Accessible.name, "Call")
        compare(button("cancelButton").Accessible.name, "Cancel")
    }

    function test_cancelPlacesNothing() {
        const before = simulatedModem.createdNumbers().length
        placeCall("0611111111", true)
        mouseClick(button("cancelButton"))
        tryCompare(dialog, "visible", false)
        verify(!CallConfirmation.pending)
        wait(600)
        compare(simulatedModem.createdNumbers().length, before)
    }

    function test_escapeIsCancel() {
        const before = simulatedModem.createdNumbers().length
        placeCall("0622222222", false)
        keyClick(Qt.Key_Escape)
        tryCompare(dialog, "visible", false)
        wait(600)
        compare(simulatedModem.createdNumbers().length, before)
    }

    function test_callPlacesTheCall() {
        const before = simulatedModem.createdNumbers().length
        placeCall("0633333333", true)
        mouseClick(button("callButton"))
        tryCompare(dialog, "visible", false)
        tryVerify(() => simulatedModem.createdNumbers().length === before + 1, 5000)
        compare(simulatedModem.createdNumbers()[before], "#31#0633333333")
        compare(Service.callFailed, false)
    }

    function test_refusedCallShowsANotice() {
        notices.clear()
        placeCall("06!", false)
        mouseClick(button("callButton"))
        tryCompare(notices, "count", 1, 5000)
        verify(notices.signalArguments[0][0].indexOf("could not be placed") >= 0, notices.signalArguments[0][0])
        compare(Service.callFailed, false)
    }
}
