import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The dialler with a number typed on the keypad and Save to History off.
Item {
    id: scene
    Component.onCompleted: defaults.setBool("hasCompletedFirstLaunch", true)
    MainView { app: testApp; id: main; anchors.fill: parent }

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

    property var steps: [
        [300, function() {
            const dialer = scene.find(main, "dialerView")
            for (const key of "0612345678")
                dialer.vm.appendDigit(key)
            dialer.vm.toggleSaveToHistory = false
        }]
    ]
}
