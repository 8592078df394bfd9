import QtQuick
import QtTest
import Quieton.Core
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Every screen and the dialogs it opens as a screen reader meets them: each
// control named and pressable through its accessible action, panes and
// dialogs named, nothing unnamed focusable, lists exposing only rows shown.
TestCase {
    id: testCase
    name: "Accessibility"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component { id: mainViewComponent; MainView { app: testApp; anchors.fill: parent } }
    Component { id: dialerComponent; DialerView { id: dialerView1; vm: testApp.createDialerViewModel(dialerView1); anchors.fill: parent } }
    Component { id: contactsComponent; ContactsView { anchors.fill: parent } }
    Component { id: historyComponent; HistoryView { anchors.fill: parent } }
    Component { id: settingComponent; SettingView { id: settingView4; vm: testApp.createSettingViewModel(settingView4); anchors.fill: parent } }
    Component { id: updateAlertComponent; AppUpdateAlert { checker: testApp.checkNewVersionService } }
    Component { id: confirmationComponent; CallConfirmationDialog { confirmation: testApp.confirmation; } }

    // What must carry a name when a screen reader lands on it.
    readonly property var containerRoles: [Accessible.Pane, Accessible.Dialog, Accessible.PageTab,
                                           Accessible.AlertMessage, Accessible.LayeredPane]

    function show(component, properties) {
        const view = createTemporaryObject(component, testCase, properties)
        waitForRendering(view)
        return view
    }

    // The names of the window's usable controls; fails on any without one.
    function names(where) {
        wait(0)
        const controls = screenReader.controls(testCase)
        verify(controls.length > 0, where + ": no controls found")
        const unnamed = controls.filter(c => c.name.length === 0).map(c => c.what)
        compare(unnamed, [], where + ": controls without an accessible name")
        return controls.map(c => c.name)
    }

    function expectNames(where, expected) {
        const spoken = names(where)
        for (const name of expected)
            verify(spoken.indexOf(name) >= 0, where + ": no control named \"" + name + "\" in " + JSON.stringify(spoken))
    }

    // The accessible tree: panes, pages and dialogs named, nothing unnamed
    // focusable, every list row on screen.
    function checkTree(where) {
        wait(0)
        const nodes = screenReader.nodes(testCase)
        const checks = [
            ["panes", nodes.filter(n => testCase.containerRoles.indexOf(n.role) >= 0 && !n.name).map(n => n.what)],
            ["focus", nodes.filter(n => n.focusable && !n.name).map(n => n.what)],
            ["rows", nodes.filter(n => n.inList && !n.shown).map(n => n.name + " (" + n.what + ")")],
        ]
        for (const [check, faults] of checks) {
            compare(faults, [], where + ": " + check)
        }
    }

    // Opens `popup` with `open`, checks what it says, and closes it with `close`.
    function expectInPopup(popup, expected, open, close) {
        open()
        tryCompare(popup, "opened", true)
        expectNames(popup.objectName || expected.join(), expected)
        checkTree(popup.objectName || expected.join())
        close()
        tryVerify(() => !popup.visible) // an update alert removes itself
    }

    // A screen reader's press on a dialog's button does what a tap does.
    function pressClosesDialog(dialog, button) {
        verify(screenReader.act(button), button.text + " offers no press action")
        compare(dialog.opened, false, button.text + " pressed by a screen reader leaves the dialog open")
        dialog.close()
        tryVerify(() => !dialog.visible)
    }

    function test_mainView() {
        const view = show(mainViewComponent)
        expectNames("main screen", ["Dialer", "Contacts", "History", "Settings"])
        checkTree("main screen")
        const tabs = findChild(view, "tabBar")
        verify(screenReader.act(tabs.itemAt(2)))
        compare(view.vm.selectedTab, 2)
        verify(screenReader.act(tabs.itemAt(0)))
        compare(view.vm.selectedTab, 0)
    }

    function test_dialer() {
        const view = show(dialerComponent)
        view.appeared()
        expectNames("empty dialler", ["asterisk", "pound", "Delete", "Hidden Number", "Save to History"])
        checkTree("dialler")

        // Every key types its character; delete takes the last one back.
        for (const key of "123456789*0#")
            verify(screenReader.act(findChild(view, "key" + key)), key)
        compare(view.vm.numberPhoneTyping, "123456789*0#")
        screenReader.act(findChild(view, "deleteKey"))
        compare(view.vm.numberPhoneTyping, "123456789*0")

        // The switches toggle, through either action.
        const hidden = view.vm.toggleHiddenNumber
        verify(screenReader.act(findChild(view, "hiddenNumberRow"), "Toggle"))
        compare(view.vm.toggleHiddenNumber, !hidden)
        verify(screenReader.act(findChild(view, "saveToHistoryRow")))
        compare(view.vm.toggleSaveToHistory, false)

        // The call button calls; a failed call's alert is closed by its "OK".
        expectNames("dialler with a number", ["Call"])
        phone.setCallsPossible(false)
        verify(screenReader.act(findChild(view, "callButton")))
        tryVerify(() => findChild(view, "dialErrorAlert"))
        const alert = findChild(view, "dialErrorAlert")
        tryCompare(alert, "opened", true)
        checkTree("dialling error")
        pressClosesDialog(alert, alert.footer.itemAt(0))
        service.acknowledgeCallFailure()
        phone.setCallsPossible(true)
    }

    function test_contacts() {
        const view = show(contactsComponent, { vm: testApp.createContactsViewModel(testCase) })
        view.appeared()
        tryCompare(view.vm.visibleContacts, "count", 2)
        tryVerify(() => findChild(view, "contactRow1") !== null)
        expectNames("contacts", ["Anna Smith, 0601", ", 0602"])
        checkTree("contacts")


        mouseClick(findChild(view, "contactRow0"))
        tryVerify(() => findChild(view, "callPrivacyDialog"))
        const dialog = findChild(view, "callPrivacyDialog")
        expectInPopup(dialog, ["Private dialing", "Normal Dialing", "Cancel"], () => {}, () => dialog.reject())
    }

    function test_history() {
        const view = show(historyComponent, { vm: testApp.createHistoryViewModel(testCase) })
        tryCompare(view.vm.filteredContacts, "count", 2)
        tryVerify(() => findChild(view, "historyRow_1") !== null)
        names("history")
        checkTree("history")

        mouseClick(findChild(view, "editButton"))
        const spoken = names("history in edit mode")
        verify(spoken.filter(n => n.startsWith("Delete ")).length === 2, JSON.stringify(spoken))
    }

    function test_settings() {
        const view = show(settingComponent)
        names("settings")
        checkTree("settings")

        const popups = [["showingPrefixByCountry", "countryDialog", ["Cancel"]],
                        ["showingIsResetSetting", "resetDialog", ["Reset"]],
                        ["showingIsClearAll", "clearAllDialog", ["Clear All"]],
                        ["isAboutPresented", "aboutCover", ["Back", "Privacy", "Terms Of Use"]],
                        ["isSendFeedBackPresented", "feedbackCover", ["Back", "Report a Problem"]]]
        for (const [flag, name, captions] of popups) {
            view[flag] = true // an alert is made when first asked for
            tryVerify(() => findChild(view, name))
            expectInPopup(findChild(view, name), captions, () => {}, () => view[flag] = false)
        }

        // A cover has one "Back", not its own beside the screen's.
        view.isAboutPresented = true
        tryCompare(findChild(view, "aboutCover"), "opened", true)
        const backs = names("about cover").filter(n => n === "Back")
        compare(backs.length, 1)
        view.isAboutPresented = false

        view.showingPrefixEditManually = true
        tryVerify(() => findChild(view, "prefixField")?.visible)
        expectNames("prefix editor", ["OK"])
        view.showingPrefixEditManually = false
    }

    // The alerts a call or an update check can raise.
    function test_alerts() {
        const alerts = [[createTemporaryObject(updateAlertComponent, testCase, { version: "9.9" }), ["Not now", "Update Now"]],
                        [createTemporaryObject(confirmationComponent, testCase), ["Cancel", "Call"]]]
        for (const [alert, captions] of alerts)
            expectInPopup(alert, captions, () => alert.open(), () => alert.close())
    }
}
