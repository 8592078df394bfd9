import QtQuick
import Quieton

// The about screen as the settings screen presents it.
Item {
    AboutView { anchors.fill: parent }
}
