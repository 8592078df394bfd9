import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Quieton.Core
import Quieton.Settings
import Quieton.App

// The app's single window: onboarding until it has been completed once, the
// main screen afterwards.
ApplicationWindow {
    id: window

    required property QuietonApp app

    width: 400
    height: 820
    visible: true
    title: "Quieton"

    // The one theme, handed to the style so that every control follows it.
    Material.theme: Theme.dark ? Material.Dark : Material.Light
    Material.accent: Theme.accent
    Material.background: Theme.background
    Material.foreground: Theme.text

    Loader {
        id: scene
        anchors.fill: parent
        sourceComponent: window.app.hasCompletedFirstLaunch ? mainComponent : welcomeComponent
    }

    // The Loader makes these in the window's context, so `window` is known
    // to them; qmllint cannot see that without a bound component, which a
    // Loader cannot make in Qt 6.4.
    Component {
        id: welcomeComponent
        WelcomeView { id: welcome; vm: window.app.createWelcomeViewModel(welcome) } // qmllint disable unqualified
    }

    Component {
        id: mainComponent
        MainView { app: window.app } // qmllint disable unqualified
    }

    // The question before a call is placed in the user's name.
    CallConfirmationDialog { confirmation: window.app.confirmation }

    // Short notices: what sharing did, a call that failed after it was
    // requested. A longer sentence wraps and stays long enough to be read.
    ToolTip {
        id: notice
        objectName: "notice"
        width: Math.min(implicitWidth, window.width - 2 * Theme.spacingHuge)
        x: (window.width - width) / 2
        // Above the tab bar.
        y: window.height - height - 4 * Theme.spacingHuge
        timeout: Math.max(3500, text.length * 70)
    }

    Connections {
        target: window.app.service
        function onNotice(message) {
            notice.text = message
            notice.open()
        }
    }

    Connections {
        target: window.app
        function onActivationRequested() {
            window.show()
            window.raise()
            window.requestActivate()
        }
        function onLinkOpened() {
            window.raise()
            window.requestActivate()
        }
    }
}
