import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Onboarding, page 1 of 3, as a first-time user sees it.
Item {
    WelcomeView { id: welcome; vm: testApp.createWelcomeViewModel(welcome); anchors.fill: parent }
    property var steps: [[100, function() { welcome.vm.selectedPage = 0 }]]
}
