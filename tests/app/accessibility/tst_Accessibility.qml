import QtQuick
import QtTest
import Quieton.Core
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Every control a person can press or type into, on every screen and in the
// dialogs those screens open, tells a screen reader what it is.
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

    // Opens `popup` with `open`, checks what it says, and closes it with `close`.
    function expectInPopup(popup, expected, open, close) {
        open()
        tryCompare(popup, "opened", true)
        expectNames(popup.objectName || expected.join(), expected)
        close()
        tryVerify(() => !popup.visible) // an update alert removes itself
    }

    function test_mainView() {
        show(mainViewComponent)
        expectNames("main screen", ["Dialer", "Contacts", "History", "Settings"])
    }

    function test_dialer() {
        const view = show(dialerComponent)
        expectNames("empty dialler", ["asterisk", "pound", "Delete"])
        mouseClick(findChild(view, "key5"))
        compare(view.vm.numberPhoneTyping, "5")
        expectNames("dialler with a number", ["Call"])
        const alert = findChild(view, "dialErrorAlert")
        expectInPopup(alert, ["OK"], () => alert.open(), () => alert.close())
    }

    function test_contacts() {
        const view = show(contactsComponent, { vm: testApp.createContactsViewModel(testCase) })
        view.appeared()
        tryCompare(view.vm.visibleContacts, "count", 2)
        tryVerify(() => findChild(view, "contactRow1") !== null)
        expectNames("contacts", ["Anna Smith, 0601", ", 0602"])

        const dialog = findChild(view, "callPrivacyDialog")
        expectInPopup(dialog, ["Private dialing", "Normal Dialing", "Cancel"],
                      () => mouseClick(findChild(view, "contactRow0")), () => dialog.reject())
    }

    function test_history() {
        const view = show(historyComponent, { vm: testApp.createHistoryViewModel(testCase) })
        tryCompare(view.vm.filteredContacts, "count", 2)
        tryVerify(() => findChild(view, "historyRow_1") !== null)
        names("history")

        mouseClick(findChild(view, "editButton"))
        const spoken = names("history in edit mode")
        verify(spoken.filter(n => n.startsWith("Delete ")).length === 2, JSON.stringify(spoken))
    }

    function test_settings() {
        const view = show(settingComponent)
        names("settings")

        const popups = [["showingPrefixByCountry", "countryDialog", ["Cancel"]],
                        ["showingIsResetSetting", "resetDialog", ["Reset"]],
                        ["showingIsClearAll", "clearAllDialog", ["Clear All"]],
                        ["isAboutPresented", "aboutCover", ["Back"]],
                        ["isSendFeedBackPresented", "feedbackCover", ["Report a Problem"]]]
        for (const [flag, name, captions] of popups)
            expectInPopup(findChild(view, name), captions, () => view[flag] = true, () => view[flag] = false)

        view.showingPrefixEditManually = true
        tryVerify(() => findChild(view, "prefixField").visible)
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
