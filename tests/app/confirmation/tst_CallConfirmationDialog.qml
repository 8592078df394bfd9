import QtQuick
import QtQuick.Controls
import QtTest
import Quieton

// What the dialog does besides placing the call (the call road covers that).
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

    function test_cancelPlacesNothing_data() {
        return [{ tag: "button", escape: false }, { tag: "escape key", escape: true }]
    }
    function test_cancelPlacesNothing(data) {
        const before = simulatedModem.createdNumbers().length
        placeCall("0611111111", true)
        if (data.escape)
            keyClick(Qt.Key_Escape)
        else
            mouseClick(button("cancelButton"))
        tryCompare(dialog, "visible", false)
        verify(!CallConfirmation.pending)
        wait(600)
        compare(simulatedModem.createdNumbers().length, before)
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
