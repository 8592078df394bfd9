import QtQuick
import QtQuick.Controls
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The question before a call that the telephony dials by itself or that a
// link places: what it shows, what each answer does, and that a second link
// never takes the place of the question on screen.
TestCase {
    id: testCase
    name: "CallConfirmationDialog"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { app: testApp; anchors.fill: parent }
    }

    CallConfirmationDialog { confirmation: testApp.confirmation; id: dialog }

    SignalSpy {
        id: notices
        target: service
        signalName: "notice"
    }

    function button(name) {
        const found = findChild(dialog.footer, name)
        verify(found, name)
        return found
    }

    function shown() {
        tryCompare(dialog, "opened", true)
        return findChild(dialog.contentItem, "dialString").text
    }

    function init() {
        defaults.setString("prefix", "#31#")
        service.acknowledgeCallFailure()
        notices.clear()
    }

    function cleanup() {
        testApp.confirmation.cancel()
        tryCompare(dialog, "visible", false)
    }

    function test_cancelPlacesNothing_data() {
        return [{ tag: "button", escape: false }, { tag: "escape key", escape: true }]
    }
    function test_cancelPlacesNothing(data) {
        const before = phone.openedCount()
        testApp.handleOpenUrl("quieton://call?number=0611111111&hidden=true")
        compare(shown(), "#31#0611111111")
        if (data.escape)
            keyClick(Qt.Key_Escape)
        else
            mouseClick(button("cancelButton"))
        tryCompare(dialog, "visible", false)
        verify(!testApp.confirmation.pending)
        compare(phone.openedCount(), before)
        verify(!service.callFailed)
    }

    function test_typedCallIsConfirmedPlacedAndRecorded() {
        defaults.setBool("hiddenNumber", true)
        defaults.setBool("saveToHistory", true)
        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        const rowsBefore = phone.storedRows().length
        const openedBefore = phone.openedCount()

        for (const c of "0687654321")
            mouseClick(findChild(dialer, "key" + c))
        mouseClick(findChild(dialer, "callButton"))
        compare(shown(), "#31#0687654321")
        compare(phone.openedCount(), openedBefore)
        mouseClick(button("callButton"))
        compare(phone.lastOpened(), "#31#0687654321")
        verify(!dialer.showingErrorDialNumberAlert)

        phone.report("confirmed-1", true, false, false)
        const rows = phone.storedRows()
        compare(rows.length, rowsBefore + 1)
        compare(rows[rowsBefore].telephone, "0687654321")
        compare(rows[rowsBefore].callHidden, true)
    }

    function test_aSecondLinkNeverTakesThePlaceOfTheFirst() {
        waitForRendering(createTemporaryObject(mainViewComponent, testCase)) // the call observer
        const before = phone.openedCount()
        testApp.handleOpenUrl("quieton://call?number=0611&hidden=true&saveToHistory=true")
        compare(shown(), "#31#0611")
        testApp.handleOpenUrl("quieton://call?number=0622&saveToHistory=false")
        compare(notices.count, 1)
        compare(notices.signalArguments[0][0], "0622 was not called: first answer the call waiting on screen.")
        compare(shown(), "#31#0611")
        mouseClick(button("callButton"))
        tryCompare(dialog, "visible", false)
        compare(phone.openedCount(), before + 1)
        compare(phone.lastOpened(), "#31#0611")
        // The refused link left the waiting call's record alone.
        const rowsBefore = phone.storedRows().length
        phone.report("link-1", true, false, false)
        const rows = phone.storedRows()
        compare(rows.length, rowsBefore + 1)
        compare(rows[rowsBefore].telephone, "0611")
        compare(rows[rowsBefore].callHidden, true)
    }
}
