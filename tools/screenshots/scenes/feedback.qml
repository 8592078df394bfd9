import QtQuick
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// The feedback screen as the settings screen presents it.
Item {
    SendFeedBackView { id: feedback1; vm: testApp.createSettingViewModel(feedback1).createSendFeedBackModel(feedback1); anchors.fill: parent }
}
