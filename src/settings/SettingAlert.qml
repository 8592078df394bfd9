import QtQuick
import QtQuick.Controls
import Quieton.Core

// An alert of the settings screen: a bold title and an optional message.
// Escape closes it, also when it has no cancel answer.
Alert {
    closePolicy: Popup.CloseOnEscape
}
