import QtQuick
import Quieton

// The feedback screen as the settings screen presents it.
Item {
    SendFeedBackView { anchors.fill: parent }
}
