import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// Onboarding, page 3 of 3, as a first-time user sees it.
Item {
    WelcomeView { id: welcomeView1; vm: testApp.createWelcomeViewModel(welcomeView1); id: welcome; anchors.fill: parent }
    property var steps: [[100, function() { welcome.vm.selectedPage = 2 }]]
}
