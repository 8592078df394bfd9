import QtQuick
import QtTest
import Quieton.Core
import Quieton.App

// The dialler, the main screen that records its calls, and a link's call.
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
    Component {
        id: mainViewComponent
        MainView { app: testApp; anchors.fill: parent }
    }
    CallConfirmationDialog { id: dialog; confirmation: testApp.confirmation }
    SignalSpy { id: notices; target: service; signalName: "notice" }

    function createDialer() {
        const view = createTemporaryObject(dialerComponent, testCase)
        view.appeared()
        waitForRendering(view)
        return view
    }
    function type(view, text) {
        for (const c of text)
            mouseClick(findChild(view, "key" + c))
    }

    function shownDialString() {
        tryCompare(dialog, "opened", true)
        return findChild(dialog.contentItem, "dialString").text
    }

    function init() {
        phone.resetCallFlags()
        phone.setCallsPossible(true)
        defaults.setBool("hiddenNumber", true)
        defaults.setBool("saveToHistory", true)
        defaults.setString("prefix", "#31#")
        notices.clear()
    }

    function cleanup() {
        testApp.confirmation.cancel()
        tryCompare(dialog, "visible", false)
    }

    function test_keypadTypesAndDeleteRemovesTheLastCharacter() {
        const view = createDialer()
        const del = findChild(view, "deleteKey")
        view.vm.numberPhoneTyping = "12\u00e9\uD83C\uDDEB\uD83C\uDDF7" // a flag is one character of four code units
        mouseClick(del)
        compare(findChild(view, "numberDisplay").text, "12\u00e9")

        // Held for a second, it clears; a short press is a tap.
        type(view, "0612")
        mousePress(del)
        wait(400)
        mouseRelease(del)
        compare(view.vm.numberPhoneTyping, "12\u00e9061")
        mousePress(del)
        tryCompare(view.vm, "numberPhoneTyping", "", 1500)
        mouseRelease(del)

        view.forceActiveFocus()
        for (const k of [Qt.Key_0, Qt.Key_7, Qt.Key_Asterisk, Qt.Key_A /* not a keypad key */])
            keyClick(k)
        compare(view.vm.numberPhoneTyping, "07*")
        keyClick(Qt.Key_Backspace)
        compare(view.vm.numberPhoneTyping, "07")
        keyClick(Qt.Key_Return)
        compare(phone.lastOpened(), "#31#07")
        keyClick(Qt.Key_Escape)
        compare(view.vm.numberPhoneTyping, "")
        // An empty number is not called, so it cannot fail.
        phone.setCallsPossible(false)
        keyClick(Qt.Key_Return)
        verify(!service.callFailed)
    }

    function test_switchesAreTheDiallersOwnAndComeBackFromTheSettings() {
        const view = createDialer()
        const hidden = findChild(view, "hiddenNumberRow")
        const save = findChild(view, "saveToHistoryRow")
        verify(hidden.checked && save.checked)

        mouseClick(save)
        compare(service.pendingCallSaveToHistory, false)
        compare(defaults.boolForKey("saveToHistory"), true) // the setting stays
        mouseClick(hidden)
        type(view, "0612")
        mouseClick(findChild(view, "callButton"))
        compare(phone.lastOpened(), "0612")

        defaults.setBool("hiddenNumber", false)
        view.vm.toggleHiddenNumber = true
        view.appeared()
        verify(!hidden.checked && save.checked)
        compare(service.pendingCallSaveToHistory, true)

        // A widget link fills the dialler.
        testApp.linkOpened("quieton://call?number=%2B33612&hidden=TRUE&saveToHistory=false")
        compare(view.vm.numberPhoneTyping, "+33612")
        compare(view.vm.toggleHiddenNumber, true)
        compare(service.pendingCallSaveToHistory, false)
    }

    // A second link never replaces the first; calls are recorded while the main screen is there.
    function test_linkCallsWaitForTheAnswer() {
        const main = createTemporaryObject(mainViewComponent, testCase)
        waitForRendering(main)
        const cancelled = phone.openedCount()
        testApp.handleOpenUrl("quieton://call?number=0699")
        compare(shownDialString(), "0699")
        keyClick(Qt.Key_Escape)
        tryCompare(dialog, "visible", false)
        verify(!testApp.confirmation.pending)
        compare(phone.openedCount(), cancelled)

        testApp.handleOpenUrl("quieton://call?number=0611&hidden=true&saveToHistory=true")
        compare(shownDialString(), "#31#0611")
        testApp.handleOpenUrl("quieton://call?number=0622&saveToHistory=false")
        compare(notices.count, 1)
        compare(notices.signalArguments[0][0], "0622 was not called: first answer the call waiting on screen.")
        compare(shownDialString(), "#31#0611")
        const before = phone.openedCount()
        mouseClick(findChild(dialog.footer, "callButton"))
        tryCompare(dialog, "visible", false)
        compare(phone.openedCount(), before + 1)
        compare(phone.lastOpened(), "#31#0611")
        // The refused link left the waiting call's record alone.
        const rowsBefore = phone.storedRows().length
        phone.report("link-1", true, false, false)
        const dialer = findChild(main, "dialerView")
        dialer.vm.numberPhoneTyping = ""
        type(dialer, "0687")
        mouseClick(findChild(dialer, "callButton"))
        phone.report("typed-1", true, false, false)
        compare(phone.storedRows().slice(rowsBefore).map(r => [r.telephone, r.callHidden]), [["0611", true], ["0687", true]])

        type(dialer, "1")
        mouseClick(findChild(dialer, "callButton"))
        main.destroy()
        wait(0)
        phone.report("typed-2", true, false, false)
        compare(phone.storedRows().length, rowsBefore + 2)
    }
}
