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
        showTab(true)
    }
    Component.onDestruction: {
        vm.callObserver.setDelegate(null)
        app.setMainViewShown(false)
    }

    // The four screens, each made the first time its tab is shown, with its
    // model. They are named by file rather than by type: a type named here
    // would be loaded, with all it uses, before the first frame. After the
    // first, a screen is made a piece per frame (the settings screen is
    // 50 ms of work), so that the tap that shows it is never held up.
    readonly property var screens: [
        { file: "qrc:/Quieton/Core/dialer/DialerView.qml", model: owner => app.createDialerViewModel(owner) },
        { file: "qrc:/Quieton/Lists/ContactsView.qml", model: owner => app.createContactsViewModel(owner) },
        { file: "qrc:/Quieton/Lists/HistoryView.qml", model: owner => app.createHistoryViewModel(owner) },
        { file: "qrc:/Quieton/Settings/SettingView.qml", model: owner => app.createSettingViewModel(owner) }
    ]
    // The screen shown once made; screens define appeared() when they need to know.
    property var shownScreen: null

    function showTab(now) {
        const slot = tabs.children[tabs.currentIndex]
        if (!slot)
            return
        if (slot.children.length === 0 && !slot.making)
            mainView.makeScreen(tabs.currentIndex, now === true)
        mainView.shownScreen = slot.making ? null : slot.children[0]
        if (mainView.shownScreen && typeof mainView.shownScreen.appeared === "function")
            mainView.shownScreen.appeared()
    }

    function makeScreen(index, now) {
        const slot = tabs.children[index]
        const screen = mainView.screens[index]
        const component = Qt.createComponent(screen.file, now ? Component.PreferSynchronous : Component.Asynchronous)
        slot.making = true
        const made = (incubator) => {
            slot.making = false
            if (incubator.status !== Component.Ready)
                console.warn("The screen could not be made:", screen.file, component.errorString())
            else if (!now && tabs.currentIndex === index)
                mainView.showTab()
        }
        const incubate = () => {
            if (component.status !== Component.Ready) {
                slot.making = false
                console.warn("The screen could not be loaded:", screen.file, component.errorString())
                return
            }
            // The model lives as long as the tab that holds its screen.
            const incubator = component.incubateObject(slot, { "anchors.fill": slot, vm: screen.model(slot) },
                                                       now ? Qt.Synchronous : Qt.Asynchronous)
            if (incubator.status === Component.Loading)
                incubator.onStatusChanged = () => made(incubator)
            else
                made(incubator)
        }
        if (component.status === Component.Loading)
            component.statusChanged.connect(incubate)
        else
            incubate()
    }

    StackLayout {
        id: tabs
        anchors.fill: parent
        currentIndex: mainView.vm.selectedTab
        onCurrentIndexChanged: mainView.showTab()

        Item { objectName: "dialerTab"; property bool making }
        Item { objectName: "contactsTab"; property bool making }
        Item { objectName: "historyTab"; property bool making }
        Item { objectName: "settingsTab"; property bool making }
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
