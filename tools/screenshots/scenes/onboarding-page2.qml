import QtQuick
import Quieton

// Onboarding, page 2 of 3, as a first-time user sees it.
Item {
    WelcomeView { id: welcome; anchors.fill: parent }
    property var steps: [[100, function() { welcome.vm.selectedPage = 1 }]]
}
