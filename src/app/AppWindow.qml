pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.Material
import Quieton.Core
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

    // Named by file rather than by type, so that start-up loads only the
    // screen it shows. The onboarding model lives as long as the window.
    Loader {
        id: scene
        anchors.fill: parent
        function show() {
            const main = window.app.hasCompletedFirstLaunch
            const file = main ? "qrc:/Quieton/App/MainView.qml" : "qrc:/Quieton/Settings/WelcomeView.qml"
            if (String(scene.source) !== file)
                scene.setSource(file, main ? { app: window.app } : { vm: window.app.createWelcomeViewModel(scene) })
        }
        Component.onCompleted: scene.show()
    }

    // The question before a call is placed in the user's name, made when
    // first asked.
    PopupOnDemand {
        asked: window.app.confirmation.pending
        content: Item {
            CallConfirmationDialog { confirmation: window.app.confirmation }
        }
    }

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
        function onHasCompletedFirstLaunchChanged() { scene.show() }
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
