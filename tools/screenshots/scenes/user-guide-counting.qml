import QtQuick
import Quieton

// The user guide right after it was opened, while it counts down.
Item {
    property int settleMs: 1500
    UserGuideForQuietonView { anchors.fill: parent }
}
