import QtQuick
import Quieton.Core

// The hairline under a row of a group, inset like the row's text.
Rectangle {
    anchors.left: parent.left
    anchors.leftMargin: Theme.spacingLarge
    anchors.right: parent.right
    anchors.bottom: parent.bottom
    height: 1
    color: Theme.separator
    Accessible.ignored: true
}
