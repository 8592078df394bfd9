import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The contacts tab over a synchronised address book of a few hundred cards, sorted by first name.
Item {
    id: scene
    property string addressBook: "addressbook"
    property int settleMs: 1500
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
        [100, function() { main.vm.selectedTab = 1 }],
        // Shown a second time: the list read the first time is sorted now.
        [1500, function() { main.vm.selectedTab = 0 }],
        [100, function() { main.vm.selectedTab = 1 }]
    ]
}
