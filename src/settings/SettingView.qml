pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Info
import Quieton.Settings

// The settings tab. The sections ask; this screen owns the flags that show
// its editor, alerts and covers, each bound to its flag and writing it back
// when it closes.
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

    title: qsTr("Settings")
    Accessible.role: Accessible.PageTab
    Accessible.name: settingView.title
    background: null

    // "Edit Manually" and the editor's "Cancel": open or close it, rule hidden.
    function toggleManualEditor() {
        settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
        settingView.showingIsEmpty = false
    }

    // A refused prefix keeps the editor open with the rule shown.
    function saveManualPrefix() {
        if (!settingView.vm.saveManualPrefix(settingView.editingPrefixNumber)) {
            settingView.showingIsEmpty = true
            return
        }
        settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
    }

    // Row 0 stands for every other country.
    function chooseCountry(index, name) {
        settingView.showingPrefixByCountry = false
        if (index === 0)
            settingView.vm.selectAllOtherCountries()
        else if (settingView.vm.selectCountry(name))
            settingView.showingCodeMultiOptions = true
    }

    Flickable {
        id: list
        objectName: "settingsList"
        contentHeight: sections.implicitHeight + 2 * Theme.spacingLarge
        boundsBehavior: Flickable.StopAtBounds
        anchors.fill: parent
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: sections
            x: Theme.spacingLarge
            y: Theme.spacingLarge
            width: list.width - 2 * Theme.spacingLarge
            spacing: Theme.spacingSmall

            PrefixSection {
                vm: settingView.vm
                onEditManually: settingView.toggleManualEditor()
                onEditByCountry: settingView.showingPrefixByCountry = true
            }
            AutoSettingSection {
                vm: settingView.vm
            }
            HelpSection {
                vm: settingView.vm
                checkNewVersionService: settingView.checkNewVersionService
                isReadUserGuide: settingView.isReadUserGuide
                onOpenUserGuide: settingView.isUserGuideForQuietonPresented = true
                onOpenFeedback: settingView.isSendFeedBackPresented = true
                onOpenAbout: settingView.isAboutPresented = true
            }
            DataSection {
                onResetSettings: settingView.showingIsResetSetting = true
                onClearAll: settingView.showingIsClearAll = true
            }
        }
    }

    // The editor and the alerts are made when first asked for.
    PopupOnDemand {
        asked: settingView.showingPrefixEditManually
        content: Item {
            PrefixEditor {
                isPresented: settingView.showingPrefixEditManually
                onIsPresentedChanged: settingView.showingPrefixEditManually = isPresented
                maxWidth: settingView.width - 3 * Theme.spacingHuge
                maxHeight: settingView.height * 0.6
                text: settingView.editingPrefixNumber
                onEdited: (text) => settingView.editingPrefixNumber = text
                showsRule: settingView.showingIsEmpty
                onAccepted: settingView.saveManualPrefix()
                onCancelled: settingView.toggleManualEditor()
            }
        }
    }

    PopupOnDemand {
        asked: settingView.showingPrefixByCountry
        content: Item {
            CountryListAlert {
                vm: settingView.vm
                visible: settingView.showingPrefixByCountry
                onClosed: settingView.showingPrefixByCountry = false
                onChosen: (index, country) => settingView.chooseCountry(index, country)
            }
        }
    }
    PopupOnDemand {
        asked: settingView.showingCodeMultiOptions
        content: Item {
            PrefixChoiceAlert {
                vm: settingView.vm
                visible: settingView.showingCodeMultiOptions
                onClosed: settingView.showingCodeMultiOptions = false
            }
        }
    }
    PopupOnDemand {
        asked: settingView.showingIsResetSetting
        content: Item {
            SettingConfirmAlert {
                objectName: "resetDialog"
                name: "reset"
                title: qsTr("Are you sure you want to reset settings?")
                message: qsTr("This action will reset your settings. Without delete you history calls.")
                actionText: qsTr("Reset")
                actionColor: Theme.destructive
                visible: settingView.showingIsResetSetting
                onConfirmed: settingView.vm.resetSettings()
                onClosed: settingView.showingIsResetSetting = false
            }
        }
    }
    PopupOnDemand {
        asked: settingView.showingIsClearAll
        content: Item {
            SettingConfirmAlert {
                objectName: "clearAllDialog"
                name: "clearAll"
                title: qsTr("Are you sure you want to Clear All Data?")
                message: qsTr("This action will reset you setting and delete all history data")
                actionText: qsTr("Clear All")
                actionColor: Theme.destructive
                visible: settingView.showingIsClearAll
                onConfirmed: settingView.vm.clearAll()
                onClosed: settingView.showingIsClearAll = false
            }
        }
    }

    SettingCover {
        objectName: "userGuideCover"
        title: qsTr("User Guide for Quieton")
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
        title: qsTr("Send Feedback")
        presented: settingView.isSendFeedBackPresented
        sourceComponent: Component { SendFeedBackView { id: f; vm: settingView.vm.createSendFeedBackModel(f) } }
        onDismiss: settingView.isSendFeedBackPresented = false
    }
    SettingCover {
        objectName: "aboutCover"
        title: qsTr("About")
        presented: settingView.isAboutPresented
        sourceComponent: Component { AboutView { service: settingView.service; urlOpener: settingView.vm.urlOpener } }
        onDismiss: settingView.isAboutPresented = false
    }
}
