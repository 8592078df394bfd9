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

    function test_rowsShowTheStoredSettings() {
        UserDefaultsService.setString("prefix", "*67")
        UserDefaultsService.setBool("saveToHistory", false)
        UserDefaultsService.setInteger("autoSortBy", 1)
        const view = createView()
        compare(findChild(button(view, "prefixRow"), "detail").text, "*67")
        verify(button(view, "autoHiddenNumberToggle").checked)
        verify(!button(view, "autoSaveToHistoryToggle").checked)
        verify(!button(view, "sortByFirstNameToggle").checked)
        verify(button(view, "sortByLastNameToggle").checked)
        verify(!button(view, "sortByTelephoneToggle").checked)
        for (const name of ["prefixRow", "editManuallyButton", "editByCountryButton", "versionRow", "userGuideRow",
                            "shareRow", "feedbackRow", "changeLanguageRow", "aboutRow", "resetSettingsButton",
                            "clearAllButton"])
            verify(button(view, name).Accessible.name.length > 0, name)
    }

    function test_manualEditorRejectsThenAccepts() {
        const view = createView()
        const editor = openEditor(view)
        const field = button(view, "prefixField")
        const rule = button(view, "prefixRuleText")
        tryCompare(field, "visible", true)
        verify(field.activeFocus)
        compare(field.placeholderText, "Enter your Prefix")
        verify(!rule.visible)

        type(field, "#")
        compare(view.editingPrefixNumber, "#")
        mouseClick(button(view, "prefixOkButton"))
        verify(view.showingIsEmpty)
        verify(rule.visible)
        compare(rule.text, "Prefix Cannot Be Empty needs at least 2 characters and without spaces")
        verify(view.showingPrefixEditManually)
        compare(disk.setting("prefix"), "#31#")

        // A space is refused however long the prefix.
        type(field, "31 #")
        mouseClick(button(view, "prefixOkButton"))
        verify(view.showingPrefixEditManually)
        compare(disk.setting("prefix"), "#31#")

        field.selectAll()
        type(field, "*82")
        compare(view.editingPrefixNumber, "*82")
        mouseClick(button(view, "prefixOkButton"))
        tryCompare(view, "showingPrefixEditManually", false)
        tryCompare(editor, "isPresented", false)
        compare(disk.setting("prefix"), "*82")
        compare(view.vm.prefixNumber, "*82")
        compare(findChild(button(view, "prefixRow"), "detail").text, "*82")
    }

    function test_editorClosedByATapOutsideShowsNoRuleNextTime() {
        const view = createView()
        openEditor(view)
        mouseClick(button(view, "prefixOkButton")) // empty: refused
        verify(view.showingIsEmpty)
        verify(button(view, "prefixRuleText").visible)

        // The dimmed window around the editor closes it and lowers the flag.
        const editor = button(view, "prefixEditor")
        mouseClick(testCase, 10, 10)
        tryCompare(view, "showingPrefixEditManually", false)
        tryCompare(editor, "shown", false)

        openEditor(view)
        verify(!view.showingIsEmpty)
        verify(!button(view, "prefixRuleText").visible)
        mouseClick(button(view, "prefixCancelButton"))
        verify(!view.showingPrefixEditManually)
        verify(!view.showingIsEmpty)
        tryCompare(editor, "shown", false)
        compare(disk.setting("prefix"), "#31#")
    }

    function test_countryWithOnePrefixStoresItAtOnce() {
        const view = createView()
        const dialog = openCountryList(view)
        compare(dialog.title, "Select By Country")
        const list = findChild(view, "countryList")
        compare(list.count, 25)
        list.positionViewAtBeginning()
        compare(findChild(list, "country:All Other Countries").text, "All Other Countries")
        mouseClick(countryButton(view, "United Kingdom"))
        tryCompare(dialog, "visible", false)
        verify(!view.showingPrefixByCountry)
        verify(!view.showingCodeMultiOptions)
        compare(disk.setting("prefix"), "141")
        compare(findChild(button(view, "prefixRow"), "detail").text, "141")

        // The first row stands for every other country.
        openCountryList(view)
        list.positionViewAtBeginning()
        mouseClick(countryButton(view, "All Other Countries"))
        tryCompare(dialog, "visible", false)
        compare(disk.setting("prefix"), "#31#")
    }

    function test_countryWithSeveralPrefixesOffersTheChoice() {
        const view = createView()
        const countries = openCountryList(view)
        mouseClick(countryButton(view, "Brazil"))
        tryCompare(countries, "visible", false)
        verify(view.showingCodeMultiOptions)
        const choice = findChild(view, "choiceDialog")
        tryCompare(choice, "opened", true)
        compare(choice.title, "There are several prefixes that can private your number. Please choose one.")
        compare(disk.setting("prefix"), "#31#") // nothing stored yet
        compare(button(choice.contentItem, "choice0").text, "1 - Brazil - [*31*]")
        compare(button(choice.contentItem, "choice1").text, "2 - Brazil - [#31#]")
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

    function test_sortTogglesExcludeEachOther() {
        const view = createView()
        const first = button(view, "sortByFirstNameToggle")
        const last = button(view, "sortByLastNameToggle")
        const telephone = button(view, "sortByTelephoneToggle")
        tapRow(view, "sortByTelephoneToggle")
        verify(telephone.checked)
        verify(!first.checked)
        verify(!last.checked)
        compare(disk.setting("autoSortBy"), 2)
        tapRow(view, "sortByLastNameToggle")
        verify(last.checked && !telephone.checked && !first.checked)
        compare(disk.setting("autoSortBy"), 1)
        // Switching the current one off leaves all three off and the order stored.
        tapRow(view, "sortByLastNameToggle")
        verify(!first.checked && !last.checked && !telephone.checked)
        compare(disk.setting("autoSortBy"), 1)
        // The model can turn a switch on again after the user turned it off.
        view.vm.resetSettings()
        verify(first.checked)

        verify(!button(view, "autoHiddenNumberToggle").checked)
        tapRow(view, "autoHiddenNumberToggle")
        compare(disk.setting("hiddenNumber"), true)
        verify(button(view, "autoHiddenNumberToggle").checked)
    }

    function test_resetKeepsTheHistoryButClearAllEmptiesIt() {
        HistoryCallDataService.addHistory("Ada", "Lovelace", "0612", true)
        HistoryCallDataService.addHistory("", "", "0700", false)
        const calls = disk.storedCalls()
        verify(calls >= 2)
        UserDefaultsService.setString("prefix", "184")
        const view = createView()

        tapRow(view, "resetSettingsButton")
        const reset = findChild(view, "resetDialog")
        tryCompare(reset, "opened", true)
        compare(reset.title, "Are you sure you want to reset settings?")
        compare(reset.message, "This action will reset your settings. Without delete you history calls.")
        mouseClick(button(reset, "resetCancelButton"))
        tryCompare(reset, "visible", false)
        verify(!view.showingIsResetSetting)
        compare(disk.setting("prefix"), "184")

        tapRow(view, "resetSettingsButton")
        tryCompare(reset, "opened", true)
        mouseClick(button(reset, "resetConfirmButton"))
        tryCompare(reset, "visible", false)
        compare(disk.setting("prefix"), "#31#")
        compare(disk.setting("hiddenNumber"), false)
        compare(disk.setting("saveToHistory"), false)
        compare(disk.setting("autoSortBy"), 0)
        compare(disk.storedCalls(), calls)
        verify(!button(view, "autoHiddenNumberToggle").checked)

        UserDefaultsService.setString("prefix", "133")
        tapRow(view, "clearAllButton")
        const clearAll = findChild(view, "clearAllDialog")
        tryCompare(clearAll, "opened", true)
        compare(clearAll.title, "Are you sure you want to Clear All Data?")
        compare(clearAll.message, "This action will reset you setting and delete all history data")
        mouseClick(button(clearAll, "clearAllCancelButton"))
        tryCompare(clearAll, "visible", false)
        compare(disk.storedCalls(), calls)

        tapRow(view, "clearAllButton")
        tryCompare(clearAll, "opened", true)
        mouseClick(button(clearAll, "clearAllConfirmButton"))
        tryCompare(clearAll, "visible", false)
        verify(!view.showingIsClearAll)
        compare(disk.storedCalls(), 0)
        compare(disk.setting("prefix"), "#31#")
        compare(disk.setting("hiddenNumber"), false)
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
        compare(cover.view.objectName, "userGuideView")
        const back = button(cover.contentItem, "coverBackButton")
        compare(back.Accessible.name, "Back")
        mouseClick(back)
        tryCompare(cover, "visible", false)
        verify(!view.isUserGuideForQuietonPresented)
        verify(!view.isReadUserGuide)
        verify(mark.visible)

        // Left open through its (shortened) countdown, the guide stores the
        // flag; the mark goes once the guide's own back control closes it.
        tapRow(view, "userGuideRow")
        tryCompare(cover, "opened", true)
        cover.view.tickInterval = 10
        tryVerify(() => UserDefaultsService.boolForKey("isReadUserGuide"), 3000)
        verify(mark.visible)
        mouseClick(button(cover.view, "backButton"))
        tryCompare(cover, "visible", false)
        verify(!view.isUserGuideForQuietonPresented)
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
            verify(cover.view, coverName)
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
        const view = createView()
        const updateNow = button(view, "updateNowButton")
        const page = "https://store.example/br/app/quieton/id123?uo=4"
        const checker = store.checkerWithStorePage(page)
        view.checkNewVersionService = checker
        verify(!updateNow.visible)
        tryCompare(checker, "isNeedUpdate", true, 10000)
        verify(updateNow.visible)
        compare(updateNow.text, "Update Now")
        closeUpdateAlert()
        const before = disk.openedUrls().length
        tapRow(view, "updateNowButton")
        compare(disk.openedUrls().length, before + 1)
        compare(disk.openedUrls()[before], page)

        // A store page that is not a valid address opens nothing.
        const broken = store.checkerWithStorePage("https://store example/app")
        view.checkNewVersionService = broken
        tryCompare(broken, "isNeedUpdate", true, 10000)
        closeUpdateAlert()
        tapRow(view, "updateNowButton")
        compare(disk.openedUrls().length, before + 1)
    }

    function test_updateNowOnlyWhileAnUpdateIsDue() {
        Qt.application.version = "3.1.4"
        const view = createView()
        compare(button(view, "updateNowButton").visible, CheckUpdate.isNeedUpdate)
        compare(findChild(button(view, "versionRow"), "detail").text, "3.1.4")
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
        compare(disk.setting("prefix"), "184")
        tapRow(view, "autoSaveToHistoryToggle")
        compare(disk.setting("saveToHistory"), false)

        main.vm.selectedTab = 0
        const dialer = findChild(main, "dialerView")
        verify(dialer)
        waitForRendering(dialer)
        verify(dialer.vm.toggleHiddenNumber)
        verify(!dialer.vm.toggleSaveToHistory)
        for (const c of "0612")
            mouseClick(findChild(dialer, "key" + c))
        mouseClick(findChild(dialer, "callButton"))
        compare(disk.lastDialled(), "1840612")

        // Hide-my-number off in settings: the next call goes without a prefix.
        main.vm.selectedTab = 3
        tapRow(view, "autoHiddenNumberToggle")
        main.vm.selectedTab = 0
        verify(!dialer.vm.toggleHiddenNumber)
        mouseClick(findChild(dialer, "callButton"))
        compare(disk.lastDialled(), "0612")
    }
}
