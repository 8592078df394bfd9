import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Quieton.Core
import Quieton.Info
import Quieton.Settings

SettingsGroup {
    id: section
    required property SettingViewModel vm
    required property CheckUpdate checkNewVersionService
    required property bool isReadUserGuide
    signal openUserGuide()
    signal openFeedback()
    signal openAbout()

    title: qsTr("Help and information")

    SettingRow {
        objectName: "versionRow"
        text: qsTr("App version")
        detail: section.vm.appVersion !== undefined ? section.vm.appVersion : ""
        Button {
            objectName: "updateNowButton"
            visible: section.checkNewVersionService.isNeedUpdate
            text: qsTr("Update Now")
            font.capitalization: Font.MixedCase
            font.pointSize: Theme.bodySize
            flat: true
            Material.foreground: Theme.link
            Accessible.onPressAction: clicked()
            onClicked: section.vm.openStorePage(section.checkNewVersionService.urlAppStore)
        }
    }
    SettingRow {
        objectName: "userGuideRow"
        text: qsTr("User Guide for Quieton")
        chevron: true
        // The mark is drawn, and said as part of the row.
        Accessible.name: section.isReadUserGuide ? text : text + ", " + qsTr("Not read yet")
        onClicked: section.openUserGuide()
        SettingIcon {
            objectName: "unreadMark"
            visible: !section.isReadUserGuide
            name: "exclamationmark.circle"
            tint: Theme.destructive
        }
    }
    SettingRow {
        objectName: "shareRow"
        text: qsTr("Share with Friends")
        chevron: true
        onClicked: section.vm.service.shareApp()
    }
    SettingRow {
        objectName: "feedbackRow"
        text: qsTr("Send Feedback")
        chevron: true
        onClicked: section.openFeedback()
    }
    SettingRow {
        objectName: "changeLanguageRow"
        text: qsTr("Change Language")
        chevron: true
        onClicked: section.vm.openSystemSettings()
    }
    SettingRow {
        objectName: "aboutRow"
        text: qsTr("About")
        chevron: true
        last: true
        onClicked: section.openAbout()
    }
}
