import QtQuick
import Quieton.Core
import Quieton.Settings

SettingsGroup {
    id: section
    required property SettingViewModel vm
    signal editManually()
    signal editByCountry()

    title: qsTr("Private Call Setting")

    SettingRow {
        objectName: "prefixRow"
        iconName: "asterisk"
        text: qsTr("Prefix:")
        detail: section.vm.prefixNumber
    }
    SettingRow {
        objectName: "editManuallyButton"
        text: qsTr("Edit Manually")
        textColor: Theme.link
        onClicked: section.editManually()
    }
    SettingRow {
        objectName: "editByCountryButton"
        text: qsTr("Edit by country")
        textColor: Theme.link
        last: true
        onClicked: section.editByCountry()
    }
}
