import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Settings

// What every call starts with, and the contacts' order (the model keeps one
// sort switch on at a time).
SettingsGroup {
    id: section
    required property SettingViewModel vm

    title: qsTr("Auto setting startup")

    SettingToggle {
        objectName: "autoHiddenNumberToggle"
        text: qsTr("Auto Hide My Number")
        value: section.vm.autoHiddenNumber
        onUserToggled: (on) => section.vm.autoHiddenNumber = on
    }
    SettingToggle {
        objectName: "autoSaveToHistoryToggle"
        text: qsTr("Auto Save To History")
        value: section.vm.autoSaveToHistory
        onUserToggled: (on) => section.vm.autoSaveToHistory = on
    }
    Label {
        text: qsTr("Auto Sort Contacts By:")
        font.pointSize: Theme.bodySize
        color: Theme.secondaryText
        Layout.fillWidth: true
        Layout.leftMargin: Theme.spacingLarge
        Layout.rightMargin: Theme.spacingLarge
        Layout.topMargin: Theme.spacing
        Layout.bottomMargin: Theme.spacingTiny
        wrapMode: Text.Wrap
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
    SettingToggle {
        objectName: "sortByFirstNameToggle"
        text: qsTr("First Name")
        value: section.vm.autoSortByFirstName
        onUserToggled: (on) => section.vm.autoSortByFirstName = on
    }
    SettingToggle {
        objectName: "sortByLastNameToggle"
        text: qsTr("Last Name")
        value: section.vm.autoSortByLastName
        onUserToggled: (on) => section.vm.autoSortByLastName = on
    }
    SettingToggle {
        objectName: "sortByTelephoneToggle"
        text: qsTr("Telephone")
        value: section.vm.autoSortByTelephone
        last: true
        onUserToggled: (on) => section.vm.autoSortByTelephone = on
    }
}
