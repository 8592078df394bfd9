pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.App

// The main screen: four tabs, each screen loaded the first time its tab is shown.
Page {
    id: mainView
    objectName: "mainView"
    Accessible.role: Accessible.Pane
    Accessible.name: "Quieton"

    required property QuietonApp app
    readonly property MainViewModel vm: app.createMainViewModel(mainView)
    property bool shouldShowBannerAd: false

    Component.onCompleted: {
        vm.recordMainViewBuilt()
        // Calls are recorded while the main screen is shown.
        vm.callObserver.setDelegate(vm.callObserverDelegate)
        app.setMainViewShown(true)
        showTab()
    }
    Component.onDestruction: {
        vm.callObserver.setDelegate(null)
        app.setMainViewShown(false)
    }

    // The four screens, each made the first time its tab is shown, with its
    // model. They are named by file rather than by type: a type named here
    // would be loaded, with all it uses, before the first frame.
    readonly property var screens: [
        { file: "qrc:/Quieton/Core/dialer/DialerView.qml", model: owner => app.createDialerViewModel(owner) },
        { file: "qrc:/Quieton/Lists/ContactsView.qml", model: owner => app.createContactsViewModel(owner) },
        { file: "qrc:/Quieton/Lists/HistoryView.qml", model: owner => app.createHistoryViewModel(owner) },
        { file: "qrc:/Quieton/Settings/SettingView.qml", model: owner => app.createSettingViewModel(owner) }
    ]
    // The screen shown; screens define appeared() when they need to know.
    property var shownScreen: null

    function showTab() {
        const slot = tabs.children[tabs.currentIndex]
        if (!slot)
            return
        if (slot.children.length === 0) {
            // The model lives as long as the tab that holds its screen.
            const screen = mainView.screens[tabs.currentIndex]
            const made = Qt.createComponent(screen.file).createObject(slot, { "anchors.fill": slot, vm: screen.model(slot) })
            if (!made)
                console.warn("The screen could not be made:", screen.file)
        }
        mainView.shownScreen = slot.children[0] ?? null
        if (mainView.shownScreen && typeof mainView.shownScreen.appeared === "function")
            mainView.shownScreen.appeared()
    }

    StackLayout {
        id: tabs
        anchors.fill: parent
        currentIndex: mainView.vm.selectedTab
        onCurrentIndexChanged: mainView.showTab()

        Item { objectName: "dialerTab" }
        Item { objectName: "contactsTab" }
        Item { objectName: "historyTab" }
        Item { objectName: "settingsTab" }
    }

    footer: TabBar {
        id: tabBar
        objectName: "tabBar"
        currentIndex: mainView.vm.selectedTab
        onCurrentIndexChanged: mainView.vm.selectedTab = currentIndex

        Repeater {
            model: [{ text: qsTr("Dialer"), symbol: "phone" },
                    { text: qsTr("Contacts"), symbol: "person.crop.square" },
                    { text: qsTr("History"), symbol: "list.bullet" },
                    { text: qsTr("Settings"), symbol: "gear.circle" }]

            // A screen reader's press selects the tab as a tap does. In
            // landscape the caption goes beside its symbol, to leave room.
            TabButton {
                required property var modelData
                required property int index
                text: modelData.text
                icon.source: "qrc:/Quieton/icons/" + modelData.symbol + ".svg"
                font.capitalization: Font.MixedCase
                display: mainView.Window.width > mainView.Window.height ? AbstractButton.TextBesideIcon : AbstractButton.TextUnderIcon
                Accessible.name: text
                Accessible.onPressAction: tabBar.setCurrentIndex(index)
            }
        }
    }
}
