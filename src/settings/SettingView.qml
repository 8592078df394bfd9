pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton.Core
import Quieton.Info
import Quieton.Popup
import Quieton.Settings

// The settings tab: the prefix (typed by hand or picked by country), the
// options every call starts with, help and information, and the two
// destructive actions. Every change goes straight to the settings store
// through the model.
Page {
    id: settingView
    objectName: "settingView"

    required property SettingViewModel vm
    // The app's update checker; tests hand in one of their own.
    property CheckUpdate checkNewVersionService: vm.checkNewVersionService
    readonly property Service service: vm.service

    property bool showingPrefixEditManually: false
    property bool showingPrefixByCountry: false
    property bool showingIsEmpty: false
    property bool showingIsResetSetting: false
    property bool showingIsClearAll: false
    property bool showingCodeMultiOptions: false
    property bool isSendFeedBackPresented: false
    property bool isUserGuideForQuietonPresented: false
    property bool isAboutPresented: false
    property string editingPrefixNumber: ""
    property bool isReadUserGuide: vm.defaultsService.boolForKey("isReadUserGuide")

    readonly property color groupedBackground: "#F2F2F7"
    readonly property color separatorColor: "#D1D1D6"
    readonly property color secondaryText: "#6C6C70"
    readonly property color tint: "#007AFF"
    readonly property color destructive: "#FF3B30"

    background: Rectangle { color: settingView.groupedBackground }

    // "OK" of the manual editor: the prefix is stored only when the rule
    // accepts it; otherwise the editor stays open with the rule shown.
    function saveManualPrefix() {
        if (!vm.saveManualPrefix(editingPrefixNumber)) {
            showingIsEmpty = true
            return
        }
        showingPrefixEditManually = !showingPrefixEditManually
    }

    // A row of the country list: the first stands for every other country.
    function chooseCountry(index, name) {
        showingPrefixByCountry = false
        if (index === 0)
            vm.selectAllOtherCountries()
        else if (vm.selectCountry(name))
            showingCodeMultiOptions = true
    }

    function updateNow() {
        vm.openStorePage(checkNewVersionService.urlAppStore)
    }

    onShowingPrefixByCountryChanged: showingPrefixByCountry ? countryDialog.open() : countryDialog.close()
    onShowingCodeMultiOptionsChanged: showingCodeMultiOptions ? choiceDialog.open() : choiceDialog.close()
    onShowingIsResetSettingChanged: showingIsResetSetting ? resetDialog.open() : resetDialog.close()
    onShowingIsClearAllChanged: showingIsClearAll ? clearAllDialog.open() : clearAllDialog.close()

    Flickable {
        id: list
        objectName: "settingsList"
        anchors.fill: parent
        contentHeight: sections.implicitHeight + 32
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: sections
            x: 16
            y: 16
            width: list.width - 32
            spacing: 6

            // 1. The prefix.
            SettingsSectionHeader { text: qsTr("Private Call Setting") }
            SettingsGroup {
                SettingRow {
                    objectName: "prefixRow"
                    iconName: "asterisk"
                    text: qsTr("Prefix:")
                    detail: settingView.vm.prefixNumber
                    Accessible.name: qsTr("Prefix:") + " " + settingView.vm.prefixNumber
                }
                SettingRow {
                    objectName: "editManuallyButton"
                    text: qsTr("Edit Manually")
                    textColor: settingView.tint
                    onClicked: {
                        settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
                        settingView.showingIsEmpty = false
                    }
                }
                SettingRow {
                    objectName: "editByCountryButton"
                    text: qsTr("Edit by country")
                    textColor: settingView.tint
                    last: true
                    onClicked: settingView.showingPrefixByCountry = true
                }
            }

            // 2. The options every call starts with.
            SettingsSectionHeader { text: qsTr("Auto setting startup") }
            SettingsGroup {
                SettingToggle {
                    objectName: "autoHiddenNumberToggle"
                    text: qsTr("Auto Hide My Number")
                    value: settingView.vm.autoHiddenNumber
                    onUserToggled: (on) => settingView.vm.autoHiddenNumber = on
                }
                SettingToggle {
                    objectName: "autoSaveToHistoryToggle"
                    text: qsTr("Auto Save To History")
                    value: settingView.vm.autoSaveToHistory
                    onUserToggled: (on) => settingView.vm.autoSaveToHistory = on
                }
                Label {
                    text: qsTr("Auto Sort Contacts By:")
                    color: settingView.secondaryText
                    Layout.fillWidth: true
                    Layout.leftMargin: 16
                    Layout.topMargin: 12
                    Layout.bottomMargin: 2
                    wrapMode: Text.Wrap
                }
                SettingToggle {
                    objectName: "sortByFirstNameToggle"
                    text: qsTr("First Name")
                    value: settingView.vm.autoSortByFirstName
                    onUserToggled: (on) => settingView.vm.autoSortByFirstName = on
                }
                SettingToggle {
                    objectName: "sortByLastNameToggle"
                    text: qsTr("Last Name")
                    value: settingView.vm.autoSortByLastName
                    onUserToggled: (on) => settingView.vm.autoSortByLastName = on
                }
                SettingToggle {
                    objectName: "sortByTelephoneToggle"
                    text: qsTr("Telephone")
                    value: settingView.vm.autoSortByTelephone
                    last: true
                    onUserToggled: (on) => settingView.vm.autoSortByTelephone = on
                }
            }

            // 3. Help and information.
            SettingsSectionHeader { text: qsTr("Help and information") }
            SettingsGroup {
                SettingRow {
                    objectName: "versionRow"
                    text: qsTr("App version")
                    detail: settingView.vm.appVersion !== undefined ? settingView.vm.appVersion : ""
                    Accessible.name: qsTr("App version") + " " + detail
                    Button {
                        objectName: "updateNowButton"
                        visible: settingView.checkNewVersionService.isNeedUpdate
                        text: qsTr("Update Now")
                        font.capitalization: Font.MixedCase
                        flat: true
                        Material.foreground: settingView.tint
                        onClicked: settingView.updateNow()
                    }
                }
                SettingRow {
                    objectName: "userGuideRow"
                    text: qsTr("User Guide for Quieton")
                    chevron: true
                    onClicked: settingView.isUserGuideForQuietonPresented = true
                    IconImage {
                        objectName: "unreadMark"
                        visible: !settingView.isReadUserGuide
                        source: "qrc:/Quieton/icons/exclamationmark.circle.svg"
                        color: settingView.destructive
                        sourceSize.width: 22
                        sourceSize.height: 22
                        Accessible.role: Accessible.Graphic
                        Accessible.name: qsTr("Not read yet")
                    }
                }
                SettingRow {
                    objectName: "shareRow"
                    text: qsTr("Share with Friends")
                    chevron: true
                    onClicked: settingView.service.shareApp()
                }
                SettingRow {
                    objectName: "feedbackRow"
                    text: qsTr("Send Feedback")
                    chevron: true
                    onClicked: settingView.isSendFeedBackPresented = true
                }
                SettingRow {
                    objectName: "changeLanguageRow"
                    text: qsTr("Change Language")
                    chevron: true
                    onClicked: settingView.vm.openSystemSettings()
                }
                SettingRow {
                    objectName: "aboutRow"
                    text: qsTr("About")
                    chevron: true
                    last: true
                    onClicked: settingView.isAboutPresented = true
                }
            }

            // 4. Destructive actions.
            SettingsSectionHeader { text: qsTr("Data") }
            SettingsGroup {
                SettingRow {
                    objectName: "resetSettingsButton"
                    text: qsTr("Reset Settings")
                    textColor: settingView.destructive
                    onClicked: settingView.showingIsResetSetting = true
                }
                SettingRow {
                    objectName: "clearAllButton"
                    text: qsTr("Clear All (Include history calls)")
                    textColor: settingView.destructive
                    last: true
                    onClicked: settingView.showingIsClearAll = true
                }
            }
        }
    }

    // The manual editor, floating over the screen while its flag is up;
    // however the popup goes away, the flag follows.
    PrefixEditor {
        id: prefixEditor
        isPresented: settingView.showingPrefixEditManually
        onIsPresentedChanged: settingView.showingPrefixEditManually = isPresented
        maxWidth: settingView.width - 72
        maxHeight: settingView.height * 0.6
        text: settingView.editingPrefixNumber
        onEdited: (text) => settingView.editingPrefixNumber = text
        showsRule: settingView.showingIsEmpty
        ruleColor: settingView.destructive
        noticeColor: settingView.secondaryText
        onAccepted: settingView.saveManualPrefix()
        onCancelled: {
            settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
            settingView.showingIsEmpty = false
        }
    }

    // "Select By Country": every country of the catalogue as a button.
    SettingAlert {
        id: countryDialog
        objectName: "countryDialog"
        title: qsTr("Select By Country")
        onClosed: settingView.showingPrefixByCountry = false

        contentItem: ColumnLayout {
            spacing: 12
            Label {
                Layout.fillWidth: true
                text: qsTr("Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.")
                font.weight: Font.Light
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            ListView {
                id: countryList
                objectName: "countryList"
                Layout.fillWidth: true
                // Whole rows and a half one, which tells that the list scrolls.
                Layout.preferredHeight: Math.min(contentHeight, 48 * Math.max(3, Math.floor(settingView.height * 0.4 / 48)) + 24)
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: settingView.vm.countryList
                ScrollIndicator.vertical: ScrollIndicator { active: true }
                delegate: Button {
                    required property int index
                    required property string modelData
                    objectName: "country:" + modelData
                    width: ListView.view.width
                    text: modelData
                    flat: true
                    font.capitalization: Font.MixedCase
                    Material.foreground: settingView.tint
                    onClicked: settingView.chooseCountry(index, modelData)
                }
            }
        }
        footer: DialogButtonBox {
            Button {
                objectName: "countryCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                onClicked: countryDialog.close()
            }
        }
    }

    // The several prefixes of the chosen country.
    SettingAlert {
        id: choiceDialog
        objectName: "choiceDialog"
        title: qsTr("There are several prefixes that can private your number. Please choose one.")
        onAboutToShow: choiceRows.model = settingView.vm.prefixChoices()
        onClosed: settingView.showingCodeMultiOptions = false

        contentItem: ColumnLayout {
            spacing: 0
            Repeater {
                id: choiceRows
                delegate: Button {
                    required property int index
                    required property var modelData
                    objectName: "choice" + index
                    Layout.fillWidth: true
                    text: modelData.caption
                    flat: true
                    font.capitalization: Font.MixedCase
                    Material.foreground: settingView.tint
                    onClicked: {
                        settingView.vm.choosePrefix(modelData.prefix)
                        choiceDialog.close()
                    }
                }
            }
        }
        footer: DialogButtonBox {
            Button {
                objectName: "choiceCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                font.bold: true
                onClicked: choiceDialog.close()
            }
        }
    }

    SettingConfirmAlert {
        id: resetDialog
        objectName: "resetDialog"
        name: "reset"
        title: qsTr("Are you sure you want to reset settings?")
        message: qsTr("This action will reset your settings. Without delete you history calls.")
        actionText: qsTr("Reset")
        actionColor: settingView.destructive
        onConfirmed: settingView.vm.resetSettings()
        onClosed: settingView.showingIsResetSetting = false
    }

    SettingConfirmAlert {
        id: clearAllDialog
        objectName: "clearAllDialog"
        name: "clearAll"
        title: qsTr("Are you sure you want to Clear All Data?")
        message: qsTr("This action will reset you setting and delete all history data")
        actionText: qsTr("Clear All")
        actionColor: settingView.destructive
        onConfirmed: settingView.vm.clearAll()
        onClosed: settingView.showingIsClearAll = false
    }

    // Full-screen covers, each made when shown and dropped when closed.
    SettingCover {
        objectName: "userGuideCover"
        presented: settingView.isUserGuideForQuietonPresented
        sourceComponent: Component { UserGuideForQuietonView { id: g; vm: settingView.vm.createUserGuideModel(g) } }
        // The guide may have counted itself as read while it was open.
        onDismiss: {
            settingView.isUserGuideForQuietonPresented = false
            settingView.isReadUserGuide = settingView.vm.defaultsService.boolForKey("isReadUserGuide")
        }
    }
    SettingCover {
        objectName: "feedbackCover"
        presented: settingView.isSendFeedBackPresented
        sourceComponent: Component { SendFeedBackView { id: f; vm: settingView.vm.createSendFeedBackModel(f) } }
        onDismiss: settingView.isSendFeedBackPresented = false
    }
    SettingCover {
        objectName: "aboutCover"
        presented: settingView.isAboutPresented
        sourceComponent: Component { AboutView { service: settingView.service; urlOpener: settingView.vm.urlOpener } }
        onDismiss: settingView.isAboutPresented = false
    }
}
