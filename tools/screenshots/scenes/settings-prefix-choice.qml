import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The choice between the several prefixes of a country (Brazil).
Item {
    id: scene
    property int settleMs: 1500
    Component.onCompleted: {
        defaults.setBool("hasCompletedFirstLaunch", true)
        Qt.application.version = "1.0.0"
        main.active = true
    }
    Loader { id: main; anchors.fill: parent; active: false; sourceComponent: MainView { app: testApp; } }

    function find(item, name) {
        if (item.objectName === name)
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = find(item.children[i], name)
            if (found)
                return found
        }
        return null
    }
    function settings() { return scene.find(main.item, "settingView") }

    property var steps: [
        [100, function() { main.item.vm.selectedTab = 3 }],
        [400, function() { const view = scene.settings(); if (view.vm.selectCountry("Brazil")) view.showingCodeMultiOptions = true }]
    ]
}
