import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The history tab in edit mode, one row swiped open to its delete button.
Item {
    id: scene
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

    // A populated history, oldest call first.
    function fill() {
        testApp.historyDataService.deleteAllHistory()
        const calls = [
            ["Anna", "Smith", "+33 6 12 34 56 78", true],
            ["Bob", "Hannah", "0612345678", false],
            [null, null, "#31#0699887766", true],
            ["Élodie", "Martin", "+33 7 55 44 33 22", true],
            ["Carl", "Jones", "020 7946 0958", false],
            ["Dora", "Ng", "+1 415 555 0132", true],
            ["Hannah", "Lee", "0687654321", false],
            ["Marc", "Anders", "+49 30 901820", true],
            ["Zoe", "Quinn", "0611223344", false]
        ]
        for (const c of calls)
            testApp.historyDataService.addHistory(c[0], c[1], c[2], c[3])
    }

    property var steps: [
        [100, function() { scene.fill(); main.vm.selectedTab = 2 }],
        [400, function() { const v = scene.find(main, "historyView"); v.editMode = true }],
        [300, function() { const v = scene.find(main, "historyView"); scene.find(v, "historyRow_1").toggleOpen() }]
    ]
}
