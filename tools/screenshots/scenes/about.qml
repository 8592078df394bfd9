import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The about screen as the settings screen presents it.
Item {
    AboutView { service: testApp.service; urlOpener: testApp.urlOpener; anchors.fill: parent }
}
