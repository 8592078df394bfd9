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
    }
    Component.onDestruction: {
        vm.callObserver.setDelegate(null)
        app.setMainViewShown(false)
    }

    StackLayout {
        id: tabs
        anchors.fill: parent
        currentIndex: mainView.vm.selectedTab

        TabPage {
            current: tabs.currentIndex === 0
            component: Component { DialerView { id: dialer; vm: mainView.app.createDialerViewModel(dialer) } }
        }
        TabPage {
            current: tabs.currentIndex === 1
            component: Component { ContactsView { id: contacts; vm: mainView.app.createContactsViewModel(contacts) } }
        }
        TabPage {
            current: tabs.currentIndex === 2
            component: Component { HistoryView { id: history; vm: mainView.app.createHistoryViewModel(history) } }
        }
        TabPage {
            current: tabs.currentIndex === 3
            component: Component { SettingView { id: settings; vm: mainView.app.createSettingViewModel(settings) } }
        }
    }

    footer: TabBar {
        id: tabBar
        objectName: "tabBar"
        currentIndex: mainView.vm.selectedTab
        onCurrentIndexChanged: mainView.vm.selectedTab = currentIndex
        Accessible.name: qsTr("Tabs")

        TabItem { text: qsTr("Dialer"); icon.source: "qrc:/Quieton/icons/phone.svg" }
        TabItem { text: qsTr("Contacts"); icon.source: "qrc:/Quieton/icons/person.crop.square.svg" }
        TabItem { text: qsTr("History"); icon.source: "qrc:/Quieton/icons/list.bullet.svg" }
        TabItem { text: qsTr("Settings"); icon.source: "qrc:/Quieton/icons/gear.circle.svg" }
    }

    // A tab's button: a screen reader's press selects it as a tap does. In
    // landscape the caption goes beside its symbol, to leave the screens room.
    component TabItem: TabButton {
        id: tabItem
        font.capitalization: Font.MixedCase
        display: mainView.width > mainView.height ? AbstractButton.TextBesideIcon : AbstractButton.TextUnderIcon
        Accessible.name: text
        Accessible.onPressAction: tabBar.setCurrentIndex(tabItem.TabBar.index)
    }

    // One tab: its screen is created on first show and told each time it
    // appears (screens define appeared() when they need to know).
    component TabPage: Loader {
        required property bool current
        required property Component component
        // Any of the screens; only some of them define appeared().
        readonly property var screen: item

        active: current || status === Loader.Ready
        sourceComponent: component
        onCurrentChanged: notifyAppeared()
        onLoaded: notifyAppeared()

        function notifyAppeared() {
            if (current && screen && typeof screen.appeared === "function")
                screen.appeared()
        }
    }
}
