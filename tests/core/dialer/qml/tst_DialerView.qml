import QtQuick
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

TestCase {
    id: testCase
    name: "DialerView"
    width: 400
    height: 760
    when: windowShown
    visible: true

    Component {
        id: dialerComponent
        DialerView { id: dialerView1; vm: testApp.createDialerViewModel(dialerView1); anchors.fill: parent }
    }

    function createDialer() {
        const view = createTemporaryObject(dialerComponent, testCase)
        verify(view)
        view.appeared()
        waitForRendering(view)
        return view
    }
    function key(view, caption) { return findChild(view, "key" + caption) }
    function type(view, text) {
        for (const c of text)
            mouseClick(key(view, c))
    }

    function init() {
        service.acknowledgeCallFailure()
        phone.resetCallFlags()
        phone.setCallsPossible(true)
        defaults.setBool("hiddenNumber", true)
        defaults.setBool("saveToHistory", true)
    }

    function test_keypadTypesAndDeleteRemovesTheLastCharacter() {
        const view = createDialer()
        const display = findChild(view, "numberDisplay")
        type(view, "*31#0")
        compare(display.text, "*31#0")
        compare(key(view, "*").Accessible.name, "asterisk")
        compare(key(view, "#").Accessible.name, "pound")

        const del = findChild(view, "deleteKey")
        verify(del.Accessible.name.length > 0)
        mouseClick(del)
        compare(view.vm.numberPhoneTyping, "*31#")
        view.vm.clear()
        mouseClick(del) // on an empty number: nothing
        compare(view.vm.numberPhoneTyping, "")

        // Held for a second, it clears.
        type(view, "0612")
        mousePress(del)
        wait(400)
        mouseRelease(del)
        compare(view.vm.numberPhoneTyping, "061") // a short press is a tap

        mousePress(del)
        wait(700)
        compare(view.vm.numberPhoneTyping, "061") // not yet a long press
        tryCompare(view.vm, "numberPhoneTyping", "", 1500)
        mouseRelease(del)
        compare(view.vm.numberPhoneTyping, "")
    }

    function test_callButtonIsDisabledAndGreyOnAnEmptyNumber() {
        const view = createDialer()
        const button = findChild(view, "callButton")
        verify(button.Accessible.name.length > 0)
        verify(!button.enabled)
        verify(Qt.colorEqual(button.tint, view.inactiveGrey))
        const before = phone.openedCount()
        mouseClick(button)
        compare(phone.openedCount(), before)
        type(view, "0")
        verify(Qt.colorEqual(button.tint, view.callGreen))
    }

    function test_failedCallShowsTheAlertUntilOk() {
        const view = createDialer()
        phone.setCallsPossible(false)
        type(view, "0612")
        mouseClick(findChild(view, "callButton"))
        const alert = findChild(view, "dialErrorAlert")
        tryCompare(alert, "opened", true)
        compare(alert.header.text,
                "Unable to make the call. Please check the number or ensure your device supports calling.")

        const ok = alert.footer.itemAt(0)
        compare(ok.text, "OK")
        mouseClick(ok)
        verify(!service.callFailed)
        tryCompare(alert, "visible", false)

        // The next call that works raises no alert.
        phone.setCallsPossible(true)
        mouseClick(findChild(view, "callButton"))
        verify(!view.showingErrorDialNumberAlert)
        compare(phone.lastOpened(), "#31#0612")
    }

    function test_switchesAreTheDiallersOwnAndComeBackFromTheSettings() {
        const view = createDialer()
        const hidden = findChild(findChild(view, "hiddenNumberRow"), "switch")
        const save = findChild(findChild(view, "saveToHistoryRow"), "switch")
        verify(hidden.checked && save.checked)

        mouseClick(save)
        compare(service.pendingCallSaveToHistory, false)
        compare(defaults.boolForKey("saveToHistory"), true) // the setting stays
        mouseClick(hidden)
        type(view, "0612")
        mouseClick(findChild(view, "callButton"))
        compare(phone.lastOpened(), "0612")

        defaults.setBool("hiddenNumber", false)
        defaults.setBool("saveToHistory", true)
        view.vm.toggleHiddenNumber = true
        view.appeared()
        verify(!hidden.checked && save.checked)
        compare(service.pendingCallSaveToHistory, true)
    }

    function test_keyboardTypesDeletesAndCalls() {
        const view = createDialer()
        view.forceActiveFocus()
        for (const k of [Qt.Key_0, Qt.Key_7, Qt.Key_Asterisk, Qt.Key_A /* not a keypad key */])
            keyClick(k)
        compare(view.vm.numberPhoneTyping, "07*")
        keyClick(Qt.Key_Backspace)
        compare(view.vm.numberPhoneTyping, "07")
        keyClick(Qt.Key_Return)
        compare(phone.lastOpened(), "#31#07")
    }

    function test_widgetLinkFillsTheDialler() {
        const view = createDialer()
        testApp.linkOpened("quieton://call?number=%2B33612&hidden=TRUE&saveToHistory=false")
        compare(view.vm.numberPhoneTyping, "+33612")
        compare(view.vm.toggleHiddenNumber, true)
        compare(service.pendingCallSaveToHistory, false)

        testApp.linkOpened("other://call?hidden=yes&saveToHistory=True")
        compare(view.vm.numberPhoneTyping, "")
        compare(view.vm.toggleHiddenNumber, false)
        compare(service.pendingCallSaveToHistory, true)
    }
}
