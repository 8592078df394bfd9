import QtQuick
import QtQuick.Controls
import Quieton.Core

// A tinted symbol, part of its row: taps reach the row and a screen reader
// passes over it.
ToolButton {
    id: symbol
    property string name
    property color tint: Theme.link
    property bool flipped: false

    enabled: false
    padding: 0
    background: null
    display: AbstractButton.IconOnly
    focusPolicy: Qt.NoFocus
    icon.source: symbol.name.length > 0 ? "qrc:/Quieton/icons/" + symbol.name + ".svg" : ""
    icon.color: symbol.tint
    icon.width: Theme.iconSize * 0.6
    icon.height: Theme.iconSize * 0.6
    transform: Scale { xScale: symbol.flipped ? -1 : 1; origin.x: symbol.width / 2 }
    Accessible.ignored: true
}
