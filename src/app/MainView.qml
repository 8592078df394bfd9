pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Lists
import Quieton.Settings
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

    // The four screens, each made the first time its tab is shown. They are
    // made here, in this screen's own context, which their components are
    // bound to (a Loader would make them in its own).
    readonly property list<Component> screens: [
        Component { DialerView { id: dialer; vm: mainView.app.createDialerViewModel(dialer) } },
        Component { ContactsView { id: contacts; vm: mainView.app.createContactsViewModel(contacts) } },
        Component { HistoryView { id: history; vm: mainView.app.createHistoryViewModel(history) } },
        Component { SettingView { id: settings; vm: mainView.app.createSettingViewModel(settings) } }
    ]
    // The screen shown; screens define appeared() when they need to know.
    property var shownScreen: null

    function showTab() {
        const slot = tabs.children[tabs.currentIndex]
        if (!slot)
            return
        if (slot.children.length === 0)
            mainView.screens[tabs.currentIndex].createObject(slot, { "anchors.fill": slot })
        mainView.shownScreen = slot.children[0]
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
