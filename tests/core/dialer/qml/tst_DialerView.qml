import QtQuick
import QtTest
import Quieton.Core
import Quieton.App

// The dialler, the main screen that records its calls, and the question
// before a call that a link places.
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

    function shownDialString() {
        tryCompare(dialog, "opened", true)
        return findChild(dialog.contentItem, "dialString").text
    }

    function init() {
        service.acknowledgeCallFailure()
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
        const display = findChild(view, "numberDisplay")
        type(view, "*31#0")
        compare(display.text, "*31#0")
        const del = findChild(view, "deleteKey")
        mouseClick(del)
        compare(view.vm.numberPhoneTyping, "*31#")
        view.vm.clear()
        mouseClick(del) // on an empty number: nothing
        compare(view.vm.numberPhoneTyping, "")
        view.vm.numberPhoneTyping = "12\u00e9\uD83C\uDDEB\uD83C\uDDF7" // a flag is one character of four code units
        mouseClick(del)
        compare(view.vm.numberPhoneTyping, "12\u00e9")
        view.vm.clear()

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

        mouseClick(alert.footer.itemAt(0)) // "OK"
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

    // Calls typed on the main screen's dialler are recorded while the main screen is there.
    function test_callsAreRecordedOnlyWhileTheMainScreenIsThere() {
        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        type(dialer, "0687")
        mouseClick(findChild(dialer, "callButton"))
        const before = phone.storedRows().length
        phone.report("typed-1", true, false, false)
        compare(phone.storedRows().length, before + 1)
        compare(phone.storedRows()[before].telephone, "0687")
        compare(phone.storedRows()[before].callHidden, true)

        type(dialer, "1")
        mouseClick(findChild(dialer, "callButton"))
        main.destroy()
        wait(0)
        phone.report("typed-2", true, false, false)
        compare(phone.storedRows().length, before + 1)
    }

    function test_cancelPlacesNothing_data() {
        return [{ tag: "button", escape: false }, { tag: "escape key", escape: true }]
    }
    function test_cancelPlacesNothing(data) {
        const before = phone.openedCount()
        testApp.handleOpenUrl("quieton://call?number=0611111111&hidden=true")
        compare(shownDialString(), "#31#0611111111")
        if (data.escape)
            keyClick(Qt.Key_Escape)
        else
            mouseClick(findChild(dialog.footer, "cancelButton"))
        tryCompare(dialog, "visible", false)
        verify(!testApp.confirmation.pending)
        compare(phone.openedCount(), before)
        verify(!service.callFailed)
    }

    function test_aSecondLinkNeverTakesThePlaceOfTheFirst() {
        waitForRendering(createTemporaryObject(mainViewComponent, testCase)) // the call observer
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
        compare(phone.storedRows().length, rowsBefore + 1)
        compare(phone.storedRows()[rowsBefore].telephone, "0611")
        compare(phone.storedRows()[rowsBefore].callHidden, true)
    }
}
