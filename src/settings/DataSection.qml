import QtQuick
import Quieton.Core
import Quieton.Settings

// The two destructive actions; the screen's alerts ask first and do the work.
SettingsGroup {
    id: section
    signal resetSettings()
    signal clearAll()

    title: qsTr("Data")

    SettingRow {
        objectName: "resetSettingsButton"
        text: qsTr("Reset Settings")
        textColor: Theme.destructive
        onClicked: section.resetSettings()
    }
    SettingRow {
        objectName: "clearAllButton"
        text: qsTr("Clear All (Include history calls)")
        textColor: Theme.destructive
        last: true
        onClicked: section.clearAll()
    }
}
