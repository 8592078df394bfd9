import QtQuick
import QtQuick.Controls
import Quieton.Core

// One person in the contacts list: first and last name side by side, the
// number below. Made and filled a screenful at a time on every keystroke of
// a search, so plain texts placed by hand.
ItemDelegate {
    id: row

    required property int index
    required property string firstName
    required property string lastName
    required property string telephone
    // Waiting in the list's pool for its next person.
    property bool pooled: false

    signal tapped(int index)

    objectName: "contactRow" + row.index
    width: ListView.view.width
    leftPadding: Theme.spacingLarge
    rightPadding: Theme.spacingLarge
    topPadding: Theme.spacingSmall
    bottomPadding: Theme.spacingSmall
    focusPolicy: Qt.NoFocus
    // A row waiting in the pool is no row to a screen reader.
    Accessible.ignored: row.pooled
    Accessible.name: (row.firstName + " " + row.lastName).trim() + ", " + row.telephone
    Accessible.onPressAction: row.clicked()
    ListView.onPooled: row.pooled = true
    ListView.onReused: row.pooled = false
    onClicked: row.tapped(row.index)

    background: Rectangle {
        color: row.pressed ? Theme.pressed : Theme.surface
    }

    // The texts lie in the row itself, one item fewer than in a content item.
    contentItem: null
    implicitHeight: number.y + number.height + row.bottomPadding

    Text {
        id: first
        x: row.leftPadding
        y: row.topPadding
        width: Math.min(first.implicitWidth, row.availableWidth)
        text: row.firstName
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: Theme.bodySize
        color: Theme.text
    }
    // Beside the first name where it fits, below it otherwise.
    Text {
        id: last
        // A gap as wide as a blank of the text's size.
        readonly property real gap: first.height / 4
        readonly property bool beside: first.width + last.gap + last.implicitWidth <= row.availableWidth
        x: row.leftPadding + (last.beside && row.firstName.length > 0 ? first.width + last.gap : 0)
        y: row.topPadding + (last.beside || row.firstName.length === 0 ? 0 : first.height)
        width: row.availableWidth - (last.x - row.leftPadding)
        text: row.lastName
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: Theme.bodySize
        font.weight: Font.DemiBold
        color: Theme.text
    }
    Text {
        id: number
        x: row.leftPadding
        y: Math.max(first.y + first.height, last.y + last.height)
        width: row.availableWidth
        text: row.telephone
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: Theme.footnoteSize
        color: Theme.secondaryText
    }
}
