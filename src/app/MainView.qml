import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton

// The main screen: four tabs, each screen loaded the first time its tab is shown.
Page {
    id: mainView

    readonly property MainViewModel vm: MainViewModel { }
    property bool shouldShowBannerAd: false
    readonly property CallObserver callObserver: CallObserver { }
    readonly property CallObserverDelegate callObserverDelegate: QuietonApp.makeCallObserverDelegate(mainView)

    Component.onCompleted: {
        vm.recordMainViewBuilt()
        // Calls are recorded while the main screen is shown.
        callObserver.setDelegate(callObserverDelegate)
        QuietonApp.setMainViewShown(true)
    }
    Component.onDestruction: {
        callObserver.setDelegate(null)
        QuietonApp.setMainViewShown(false)
    }

    StackLayout {
        id: tabs
        anchors.fill: parent
        currentIndex: mainView.vm.selectedTab

        TabPage { current: tabs.currentIndex === 0; component: Component { DialerView { } } }
        TabPage {
            current: tabs.currentIndex === 1
            component: Component { ContactsView { id: contacts; vm: QuietonApp.makeContactsViewModel(contacts) } }
        }
        TabPage {
            current: tabs.currentIndex === 2
            component: Component { HistoryView { id: history; vm: QuietonApp.makeHistoryViewModel(history) } }
        }
        TabPage { current: tabs.currentIndex === 3; component: Component { SettingView { } } }
    }

    footer: TabBar {
        id: tabBar
        currentIndex: mainView.vm.selectedTab
        onCurrentIndexChanged: mainView.vm.selectedTab = currentIndex

        TabButton {
            text: qsTr("Dialer")
            font.capitalization: Font.MixedCase
            icon.source: "qrc:/Quieton/icons/phone.svg"
            display: AbstractButton.TextUnderIcon
        }
        TabButton {
            text: qsTr("Contacts")
            font.capitalization: Font.MixedCase
            icon.source: "qrc:/Quieton/icons/person.crop.square.svg"
            display: AbstractButton.TextUnderIcon
        }
        TabButton {
            text: qsTr("History")
            font.capitalization: Font.MixedCase
            icon.source: "qrc:/Quieton/icons/list.bullet.svg"
            display: AbstractButton.TextUnderIcon
        }
        TabButton {
            text: qsTr("Settings")
            font.capitalization: Font.MixedCase
            icon.source: "qrc:/Quieton/icons/gear.circle.svg"
            display: AbstractButton.TextUnderIcon
        }
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
