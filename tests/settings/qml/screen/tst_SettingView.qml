import QtQuick
import QtQuick.Controls
import QtTest
import Quieton

TestCase {
    id: testCase
    name: "SettingView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainComponent
        MainView { anchors.fill: parent }
    }
    Component {
        id: settingComponent
        SettingView { anchors.fill: parent }
    }

    function createView() {
        const view = createTemporaryObject(settingComponent, testCase)
        verify(view)
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
    function type(field, text) {
        field.forceActiveFocus()
        for (const c of text)
            keyClick(c)
    }
    // The country list's button for `country`, scrolled into sight.
    function countryButton(view, country) {
        const list = findChild(view, "countryList")
        const index = view.vm.countryList.indexOf(country)
        verify(index >= 0, country)
        list.positionViewAtIndex(index, ListView.Center)
        wait(0)
        const item = findChild(list, "country:" + country)
        verify(item, country)
        return item
    }
    // Opens the manual editor and waits until it has slid into place.
    function openEditor(view) {
        mouseClick(button(view, "editManuallyButton"))
        verify(view.showingPrefixEditManually)
        const editor = button(view, "prefixEditor")
        tryCompare(editor, "isPresented", true)
        tryCompare(editor.card, "offsetY", 0)
        tryCompare(editor.card, "offsetX", 0)
        return editor
    }
    function openCountryList(view) {
        mouseClick(button(view, "editByCountryButton"))
        const dialog = findChild(view, "countryDialog")
        tryCompare(dialog, "opened", true)
        return dialog
    }

    function init() {
        UserDefaultsService.setString("prefix", "#31#")
        UserDefaultsService.setBool("hiddenNumber", true)
        UserDefaultsService.setBool("saveToHistory", true)
        UserDefaultsService.setInteger("autoSortBy", 0)
    }

    function test_rowsShowTheStoredSettingsAndCarryNames() {
        UserDefaultsService.setString("prefix", "*67")
        UserDefaultsService.setInteger("autoSortBy", 1)
        const view = createView()
        compare(findChild(button(view, "prefixRow"), "detail").text, "*67")
        verify(button(view, "sortByLastNameToggle").checked)
        verify(!button(view, "sortByFirstNameToggle").checked)
        for (const name of ["prefixRow", "editManuallyButton", "editByCountryButton", "versionRow", "userGuideRow",
                            "shareRow", "feedbackRow", "changeLanguageRow", "aboutRow", "resetSettingsButton",
                            "clearAllButton"])
            verify(button(view, name).Accessible.name.length > 0, name)
    }

    function test_manualEditorRejectsThenAccepts() {
        const view = createView()
        let editor = openEditor(view)
        const field = button(view, "prefixField")
        const rule = button(view, "prefixRuleText")
        tryCompare(field, "visible", true)
        verify(field.activeFocus)
        verify(!rule.visible)
        type(field, "#")
        mouseClick(button(view, "prefixOkButton"))
        verify(view.showingIsEmpty)
        verify(rule.visible)
        compare(rule.text, "Prefix Cannot Be Empty needs at least 2 characters and without spaces")
        verify(view.showingPrefixEditManually)
        compare(disk.setting("prefix"), "#31#")

        // The dimmed window around the editor closes it and lowers the flags:
        // no rule shown when it opens again.
        mouseClick(testCase, 10, 10)
        tryCompare(view, "showingPrefixEditManually", false)
        tryCompare(editor, "shown", false)
        openEditor(view)
        verify(!view.showingIsEmpty)
        verify(!rule.visible)

        field.selectAll()
        type(field, "*82")
        compare(view.editingPrefixNumber, "*82")
        mouseClick(button(view, "prefixOkButton"))
        tryCompare(view, "showingPrefixEditManually", false)
        tryCompare(editor, "isPresented", false)
        compare(disk.setting("prefix"), "*82")
        compare(findChild(button(view, "prefixRow"), "detail").text, "*82")
    }

    function test_countryListStoresOrOffersTheChoice() {
        const view = createView()
        const countries = openCountryList(view)
        compare(findChild(view, "countryList").count, 25)
        mouseClick(countryButton(view, "United Kingdom"))
        tryCompare(countries, "visible", false)
        verify(!view.showingPrefixByCountry)
        verify(!view.showingCodeMultiOptions)
        compare(disk.setting("prefix"), "141")
        compare(findChild(button(view, "prefixRow"), "detail").text, "141")

        openCountryList(view)
        mouseClick(countryButton(view, "Brazil"))
        tryCompare(countries, "visible", false)
        verify(view.showingCodeMultiOptions)
        const choice = findChild(view, "choiceDialog")
        tryCompare(choice, "opened", true)
        compare(choice.title, "There are several prefixes that can private your number. Please choose one.")
        compare(disk.setting("prefix"), "141") // nothing stored yet
        compare(button(choice.contentItem, "choice2").text, "3 - Brazil - [*31#]")
        verify(!findChild(choice.contentItem, "choice3"))
        mouseClick(button(choice.contentItem, "choice2"))
        tryCompare(choice, "visible", false)
        verify(!view.showingCodeMultiOptions)
        compare(disk.setting("prefix"), "*31#")

        // Another country with a list shows its own rows; cancel stores nothing.
        openCountryList(view)
        mouseClick(countryButton(view, "United States"))
        tryCompare(choice, "opened", true)
        compare(button(choice.contentItem, "choice1").text, "2 - United States - [*67]")
        verify(!findChild(choice.contentItem, "choice2"))
        mouseClick(button(choice, "choiceCancelButton"))
        tryCompare(choice, "visible", false)
        compare(disk.setting("prefix"), "*31#")
    }

    function test_sortSwitchesWriteTheFileAndFollowTheModel() {
        const view = createView()
        const first = button(view, "sortByFirstNameToggle")
        const telephone = button(view, "sortByTelephoneToggle")
        tapRow(view, "sortByTelephoneToggle")
        verify(telephone.checked && !first.checked)
        compare(disk.setting("autoSortBy"), 2)
        tapRow(view, "sortByTelephoneToggle")
        verify(!first.checked && !telephone.checked)
        // The model can turn a switch on again after the user turned it off.
        view.vm.resetSettings()
        verify(first.checked)
    }

    // Each dialog stores nothing when cancelled and does its work when confirmed.
    function test_resetKeepsTheHistoryButClearAllEmptiesIt() {
        QuietonApp.historyDataService.addHistory("Ada", "Lovelace", "0612", true)
        const calls = disk.storedCalls()
        verify(calls >= 1)
        const view = createView()
        for (const [row, dialogName, title, message, calledAfter] of [
                ["resetSettingsButton", "resetDialog", "Are you sure you want to reset settings?",
                 "This action will reset your settings. Without delete you history calls.", calls],
                ["clearAllButton", "clearAllDialog", "Are you sure you want to Clear All Data?",
                 "This action will reset you setting and delete all history data", 0]]) {
            UserDefaultsService.setString("prefix", "184")
            const prefix = dialogName.replace("Dialog", "")
            tapRow(view, row)
            const dialog = findChild(view, dialogName)
            tryCompare(dialog, "opened", true)
            compare(dialog.title, title)
            compare(dialog.message, message)
            mouseClick(button(dialog, prefix + "CancelButton"))
            tryCompare(dialog, "visible", false)
            compare(disk.setting("prefix"), "184")
            compare(disk.storedCalls(), calls)

            tapRow(view, row)
            tryCompare(dialog, "opened", true)
            mouseClick(button(dialog, prefix + "ConfirmButton"))
            tryCompare(dialog, "visible", false)
            verify(!view.showingIsResetSetting && !view.showingIsClearAll)
            compare(disk.setting("prefix"), "#31#")
            compare(disk.setting("hiddenNumber"), false)
            compare(disk.storedCalls(), calledAfter)
            verify(!button(view, "autoHiddenNumberToggle").checked)
        }
    }

    function test_languageAndShareRows() {
        const view = createView()
        const settingsBefore = disk.systemSettingsOpened()
        tapRow(view, "changeLanguageRow")
        compare(disk.systemSettingsOpened(), settingsBefore + 1)
        const sharedBefore = disk.sharedCount()
        tapRow(view, "shareRow")
        compare(disk.sharedCount(), sharedBefore + 1)
    }

    function test_userGuideCoverRefreshesTheUnreadMark() {
        UserDefaultsService.setBool("isReadUserGuide", false)
        const view = createView()
        const mark = button(view, "unreadMark")
        verify(mark.visible)
        verify(mark.Accessible.name.length > 0)

        // Closed before the guide counts as read: the mark stays.
        tapRow(view, "userGuideRow")
        const cover = button(view, "userGuideCover")
        tryCompare(cover, "opened", true)
        const back = button(cover.contentItem, "coverBackButton")
        compare(back.Accessible.name, "Back")
        mouseClick(back)
        tryCompare(cover, "visible", false)
        verify(!view.isUserGuideForQuietonPresented)
        verify(mark.visible)

        // Left open through its countdown (a second a tick, shortened here),
        // the guide stores the flag, and every opening counts from the start;
        // the mark goes once the guide's own back control closes it.
        tapRow(view, "userGuideRow")
        tryCompare(cover, "opened", true)
        compare(cover.view.tickInterval, 1000)
        compare(cover.view.timeRemaining, 5)
        cover.view.tickInterval = 10
        tryVerify(() => UserDefaultsService.boolForKey("isReadUserGuide"), 3000)
        verify(mark.visible)
        mouseClick(button(cover.view, "backButton"))
        tryCompare(cover, "visible", false)
        verify(view.isReadUserGuide)
        verify(!mark.visible)
    }

    function test_aboutAndFeedbackCoversCloseOnTheirOwnBackControl() {
        const view = createView()
        for (const [row, coverName, flag] of [["aboutRow", "aboutCover", "isAboutPresented"],
                                              ["feedbackRow", "feedbackCover", "isSendFeedBackPresented"]]) {
            tapRow(view, row)
            verify(view[flag])
            const cover = button(view, coverName)
            tryCompare(cover, "opened", true)
            // The view's own request to go away closes the cover and lowers the flag.
            cover.view.dismissRequested()
            tryCompare(cover, "visible", false)
            verify(!view[flag])
            compare(cover.view, null)

            // So does the navigation bar's back button.
            tapRow(view, row)
            tryCompare(cover, "opened", true)
            mouseClick(button(cover.contentItem, "coverBackButton"))
            tryCompare(cover, "visible", false)
            verify(!view[flag])
        }
    }

    // Closes the update alert the checker puts up on the window.
    function closeUpdateAlert() {
        tryVerify(() => store.updateAlerts() > 0)
        store.closeUpdateAlerts()
        tryVerify(() => store.updateAlerts() === 0)
    }

    function test_updateNowOpensTheStorePage() {
        Qt.application.version = "3.1.4"
        const view = createView()
        compare(findChild(button(view, "versionRow"), "detail").text, "3.1.4")
        const updateNow = button(view, "updateNowButton")
        const page = "https://store.example/br/app/quieton/id123?uo=4"
        const checker = store.checkerWithStorePage(page)
        view.checkNewVersionService = checker
        verify(!updateNow.visible)
        tryCompare(checker, "isNeedUpdate", true, 10000)
        verify(updateNow.visible)
        closeUpdateAlert()
        const before = disk.openedUrls().length
        tapRow(view, "updateNowButton")
        compare(disk.openedUrls().length, before + 1)
        compare(disk.openedUrls()[before], page)
    }

    // What the settings tab changes, the dialler uses for the next call.
    function test_dialerUsesWhatTheSettingsTabChanged() {
        Service.callFailed = false
        const main = createTemporaryObject(mainComponent, testCase)
        main.vm.selectedTab = 3
        const view = findChild(main, "settingView")
        verify(view)
        waitForRendering(view)
        const countries = openCountryList(view)
        mouseClick(countryButton(view, "Japan"))
        tryCompare(countries, "visible", false)
        tapRow(view, "autoSaveToHistoryToggle")

        main.vm.selectedTab = 0
        const dialer = findChild(main, "dialerView")
        verify(dialer)
        waitForRendering(dialer)
        verify(dialer.vm.toggleHiddenNumber)
        verify(!dialer.vm.toggleSaveToHistory)
        for (const c of "0612")
            mouseClick(findChild(dialer, "key" + c))
        mouseClick(findChild(dialer, "callButton"))
        compare(disk.lastOpened(), "1840612")

        // Hide-my-number off in settings: the next call goes without a prefix.
        main.vm.selectedTab = 3
        tapRow(view, "autoHiddenNumberToggle")
        main.vm.selectedTab = 0
        verify(!dialer.vm.toggleHiddenNumber)
        mouseClick(findChild(dialer, "callButton"))
        compare(disk.lastOpened(), "0612")
    }
}
