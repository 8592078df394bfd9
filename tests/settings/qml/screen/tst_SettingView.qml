import QtQuick
import QtTest
import Quieton.Settings
import Quieton.App

// The settings screen's wiring to the settings and history files and the dialler.
TestCase {
    id: testCase
    name: "SettingView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component { id: mainComponent; MainView { app: testApp; anchors.fill: parent } }
    Component { id: settingComponent; SettingView { id: settingView1; vm: testApp.createSettingViewModel(settingView1); anchors.fill: parent } }

    function createView() {
        const view = createTemporaryObject(settingComponent, testCase)
        waitForRendering(view)
        return view
    }
    function button(view, name) {
        const item = findChild(view, name)
        verify(item, name)
        return item
    }
    // Brings a row of the settings list into sight, then taps it.
    function tapRow(view, name) {
        const item = button(view, name)
        const list = findChild(view, "settingsList")
        const y = item.mapToItem(list.contentItem, 0, 0).y
        list.contentY = Math.max(0, Math.min(y - 100, list.contentHeight - list.height))
        wait(0)
        mouseClick(item)
    }
    function type(text) {
        for (const c of text)
            keyClick(c)
    }
    function prefixShown(view) {
        return findChild(button(view, "prefixRow"), "detail").text
    }

    function init() {
        defaults.setString("prefix", "#31#")
        defaults.setBool("hiddenNumber", true)
        defaults.setBool("saveToHistory", true)
        defaults.setInteger("autoSortBy", 0)
    }

    function test_manualEditorRejectsThenAccepts() {
        const view = createView()
        mouseClick(button(view, "editManuallyButton"))
        tryVerify(() => findChild(view, "prefixEditor"))
        const editor = button(view, "prefixEditor")
        tryCompare(editor.card, "offsetY", 0)
        const field = button(view, "prefixField")
        const rule = button(view, "prefixRuleText")
        tryCompare(field, "activeFocus", true)
        // Named for a screen reader; Escape in the field only lowers the flag, it is no "Cancel".
        compare(screenReader.name(editor.contentItem.parent), "Edit Manually")
        keyClick(Qt.Key_Escape)
        tryCompare(editor, "visible", false)
        verify(!view.showingPrefixEditManually)
        mouseClick(button(view, "editManuallyButton"))
        tryCompare(editor.card, "offsetY", 0)
        tryCompare(field, "activeFocus", true)
        verify(!rule.visible)
        type("#")
        mouseClick(button(view, "prefixOkButton"))
        verify(view.showingIsEmpty && view.showingPrefixEditManually && rule.visible)

        // The editor stays open on a rejected prefix; the field is edited in place.
        mouseClick(field)
        field.selectAll()
        type("*82")
        mouseClick(button(view, "prefixOkButton"))
        tryCompare(editor, "isPresented", false)
        verify(!view.showingPrefixEditManually)
        compare(disk.setting("prefix"), "*82")
        compare(prefixShown(view), "*82")
    }

    function test_aCountryWithSeveralPrefixesAsksFirst() {
        const view = createView()
        for (const choose of [false, true]) {
            mouseClick(button(view, "editByCountryButton"))
            tryVerify(() => findChild(view, "countryDialog"))
            const countries = findChild(view, "countryDialog")
            const list = findChild(view, "countryList")
            tryCompare(countries, "opened", true)
            list.positionViewAtIndex(view.vm.countryList.indexOf("Brazil"), ListView.Center)
            wait(0)
            mouseClick(button(list, "country:Brazil"))
            tryVerify(() => findChild(view, "choiceDialog"))
            const choice = findChild(view, "choiceDialog")
            tryCompare(choice, "opened", true)
            verify(!countries.visible && view.showingCodeMultiOptions)
            compare(button(choice.contentItem, "choice2").text, "3 - Brazil - [*31#]")
            verify(!findChild(choice.contentItem, "choice3"))
            mouseClick(choose ? button(choice.contentItem, "choice2") : button(choice, "choiceCancelButton"))
            tryCompare(choice, "visible", false)
            verify(!view.showingCodeMultiOptions)
            compare(disk.setting("prefix"), choose ? "*31#" : "#31#")
            compare(prefixShown(view), disk.setting("prefix"))
        }
    }

    // Each dialog stores nothing when cancelled and does its work when confirmed.
    function test_resetKeepsTheHistoryButClearAllEmptiesIt() {
        testApp.historyDataService.addHistory("Ada", "Lovelace", "0612", true)
        defaults.setBool("hasCompletedFirstLaunch", true)
        defaults.setBool("isReadUserGuide", true)
        const calls = disk.storedRows().length
        verify(calls >= 1)
        const view = createView()
        for (const [row, dialogName, calledAfter] of [["resetSettingsButton", "resetDialog", calls],
                                                      ["clearAllButton", "clearAllDialog", 0]]) {
            defaults.setString("prefix", "184")
            defaults.setInteger("autoSortBy", 2)
            const prefix = dialogName.replace("Dialog", "")
            tapRow(view, row)
            tryVerify(() => findChild(view, dialogName))
            const dialog = findChild(view, dialogName)
            tryCompare(dialog, "opened", true)
            mouseClick(button(dialog, prefix + "CancelButton"))
            tryCompare(dialog, "visible", false)
            compare(disk.setting("prefix"), "184")
            compare(disk.storedRows().length, calls)

            tapRow(view, row)
            tryCompare(dialog, "opened", true)
            mouseClick(button(dialog, prefix + "ConfirmButton"))
            tryCompare(dialog, "visible", false)
            verify(!view.showingIsResetSetting && !view.showingIsClearAll)
            // Back to the defaults; the onboarding flags stay.
            compare(["prefix", "hiddenNumber", "saveToHistory", "autoSortBy", "hasCompletedFirstLaunch",
                     "isReadUserGuide"].map(key => disk.setting(key)), ["#31#", false, false, 0, true, true])
            compare(disk.storedRows().length, calledAfter)
            verify(!button(view, "autoHiddenNumberToggle").checked && button(view, "sortByFirstNameToggle").checked)
        }
    }

    // A screen reader's press does what a tap does.
    function test_screenReaderPressesDoWhatTapsDo() {
        const view = createView()
        for (const [name, action, done] of [
                ["autoHiddenNumberToggle", "Toggle", () => !view.vm.autoHiddenNumber],
                ["sortByTelephoneToggle", "Press", () => view.vm.autoSortByTelephone && !view.vm.autoSortByFirstName],
                ["editManuallyButton", "Press", () => findChild(view, "prefixEditor")?.shown]]) {
            verify(screenReader.act(button(view, name), action), name)
            tryVerify(done, 2000, name)
        }
        compare(disk.setting("hiddenNumber"), false)
        compare(disk.setting("autoSortBy"), 2)
    }

    // Each cover has one "Back" that lowers its flag; the guide left open through its countdown is marked read.
    function test_coversHaveOneBackAndLowerTheirFlagWhenClosed() {
        defaults.setBool("isReadUserGuide", false)
        const view = createView()
        const mark = button(view, "unreadMark")
        for (const [row, flag, coverName] of [["feedbackRow", "isSendFeedBackPresented", "feedbackCover"],
                                              ["userGuideRow", "isUserGuideForQuietonPresented", "userGuideCover"]]) {
            verify(screenReader.act(button(view, row), "Press"))
            const cover = button(view, coverName)
            tryCompare(cover, "opened", true)
            compare(screenReader.buttons(view).filter(name => name === "Back").length, 1, coverName)
            if (coverName === "userGuideCover") {
                cover.view.tickInterval = 10
                tryVerify(() => defaults.boolForKey("isReadUserGuide"), 3000)
                verify(mark.visible)
                mouseClick(button(cover.view, "backButton"))
            } else {
                verify(screenReader.act(button(cover, "coverBackButton"), "Press"))
            }
            tryCompare(cover, "visible", false)
            verify(!view[flag] && cover.view === null)
        }
        verify(view.isReadUserGuide && !mark.visible)
    }

    // A switch the settings tab changed shows on the dialler tab.
    function test_dialerUsesWhatTheSettingsTabChanged() {
        const main = createTemporaryObject(mainComponent, testCase)
        main.vm.selectedTab = 3
        tryVerify(() => main.shownScreen !== null)
        const view = findChild(main, "settingView")
        tapRow(view, "autoSaveToHistoryToggle")
        main.vm.selectedTab = 0
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        verify(dialer.vm.toggleHiddenNumber && !dialer.vm.toggleSaveToHistory)
    }
}
