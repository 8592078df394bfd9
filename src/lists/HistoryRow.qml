pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import Quieton.Core

// One recorded call in the history list. Swiping it to the left slides it
// over its delete button; in edit mode the round control in front of it does
// the same. The delete button and the edit control are made when first
// needed: a search makes and fills a screenful of rows on every keystroke.
ItemDelegate {
    id: row

    required property int index
    required property var objectId
    required property var firstName
    required property var lastName
    required property var telephone
    required property var time
    required property bool callHidden
    property bool editMode
    // The width of the delete button a swipe uncovers.
    property real deleteWidth: Theme.touchTarget * 2
    // Waiting in the list's pool for its next record.
    property bool pooled: false

    signal tapped(int index)
    signal deleteRequested(int index)

    readonly property string nameLine: (row.lastName === undefined ? qsTr("N/A") : row.lastName) + " "
                                       + (row.firstName === undefined ? qsTr("N/A") : row.firstName)
    readonly property bool open: row.x < 0
    property Item deleteButton: null
    property Item editControl: null

    function toggleOpen() {
        row.x = row.open ? 0 : -row.deleteWidth
    }
    function makeEditControl() {
        if (row.editMode && !row.editControl)
            row.editControl = editControlComponent.createObject(row)
    }

    objectName: "historyRow_" + row.index
    width: ListView.view.width
    leftPadding: Theme.spacingLarge + (row.editMode ? Theme.touchTarget : 0)
    rightPadding: Theme.spacingLarge
    topPadding: Theme.spacingSmall
    bottomPadding: Theme.spacingSmall
    focusPolicy: Qt.NoFocus
    Accessible.name: row.nameLine + ", " + numberLine.text + ", " + timeLine.text + ", " + privacyMark.text
    // A row waiting in the pool is no row to a screen reader.
    Accessible.ignored: row.pooled
    Accessible.onPressAction: row.clicked()
    onClicked: row.tapped(row.index)

    ListView.onPooled: {
        row.pooled = true
        row.x = 0
    }
    ListView.onReused: row.pooled = false
    // A search or a deletion fills the row with another record: it shows
    // that one closed.
    onObjectIdChanged: row.x = 0
    onOpenChanged: {
        if (row.open && !row.deleteButton)
            row.deleteButton = deleteButtonComponent.createObject(row)
    }
    onEditModeChanged: {
        row.makeEditControl()
        if (!row.editMode)
            row.x = 0
    }
    Component.onCompleted: row.makeEditControl()

    background: Rectangle {
        color: row.pressed ? Theme.pressed : Theme.surface
    }

    // The texts lie in the row itself, one item fewer than in a content item.
    contentItem: null
    implicitHeight: privacyMark.y + privacyMark.height + row.bottomPadding

    Text {
        id: nameLine
        objectName: "nameLine"
        x: row.leftPadding
        y: row.topPadding
        width: row.availableWidth
        text: row.nameLine
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: Theme.bodySize
        font.weight: Font.DemiBold
        color: Theme.text
    }
    Text {
        id: numberLine
        objectName: "numberLine"
        x: row.leftPadding
        y: nameLine.y + nameLine.height
        width: row.availableWidth
        text: row.telephone === undefined ? qsTr("N/A") : row.telephone
        textFormat: Text.PlainText
        wrapMode: Text.Wrap
        font.pointSize: Theme.bodySize
        color: Theme.text
    }
    Text {
        id: timeLine
        objectName: "timeLine"
        x: row.leftPadding
        y: numberLine.y + numberLine.height
        width: privacyMark.besideTime ? timeLine.implicitWidth : row.availableWidth
        wrapMode: Text.Wrap
        text: row.time === undefined ? qsTr("N/A") : row.time
        textFormat: Text.PlainText
        font.pointSize: Theme.footnoteSize
        color: Theme.secondaryText
    }
    // Beside the time where both fit, below it otherwise.
    Text {
        id: privacyMark
        objectName: "privacyMark"
        readonly property bool besideTime: timeLine.implicitWidth + Theme.spacing + privacyMark.implicitWidth <= row.availableWidth
        x: row.leftPadding + (privacyMark.besideTime ? row.availableWidth - privacyMark.width : 0)
        y: privacyMark.besideTime ? timeLine.y : timeLine.y + timeLine.height
        width: Math.min(privacyMark.implicitWidth, row.availableWidth)
        wrapMode: Text.Wrap
        text: row.callHidden ? qsTr("Hidden") : qsTr("Normal Dialing")
        textFormat: Text.PlainText
        font.pointSize: Theme.footnoteSize
        font.weight: Font.DemiBold
        color: row.callHidden ? Theme.accent : Theme.secondaryText
    }

    // Swiping left slides the row over its delete button; letting go past
    // half of it leaves the row open.
    DragHandler {
        id: swipe
        target: row
        yAxis.enabled: false
        xAxis.minimum: -row.deleteWidth
        xAxis.maximum: 0
        onActiveChanged: {
            if (!swipe.active)
                row.x = row.x < -row.deleteWidth / 2 ? -row.deleteWidth : 0
        }
    }

    Component {
        id: deleteButtonComponent
        Button {
            id: deleteButton
            objectName: "swipeDeleteButton"
            visible: row.open
            x: row.width
            width: row.deleteWidth
            height: row.height
            text: qsTr("Delete")
            font.capitalization: Font.MixedCase
            font.pointSize: Theme.bodySize
            topInset: 0
            bottomInset: 0
            focusPolicy: Qt.NoFocus
            Accessible.ignored: !deleteButton.visible
            Accessible.name: deleteButton.text
            Accessible.onPressAction: row.deleteRequested(row.index)
            onClicked: row.deleteRequested(row.index)
            contentItem: Text {
                text: deleteButton.text
                textFormat: Text.PlainText
                font: deleteButton.font
                color: Theme.textOnAccent
                horizontalAlignment: Text.AlignHCenter
                verticalAlignment: Text.AlignVCenter
            }
            background: Rectangle { color: Theme.destructive }
        }
    }

    Component {
        id: editControlComponent
        AbstractButton {
            id: editControl
            objectName: "editDeleteControl"
            visible: row.editMode && !row.pooled
            x: Theme.spacingSmall
            y: (row.height - editControl.height) / 2
            implicitWidth: Theme.touchTarget
            implicitHeight: Theme.touchTarget
            focusPolicy: Qt.NoFocus
            // A red disc with a white bar.
            leftInset: Theme.touchTarget / 5
            rightInset: Theme.touchTarget / 5
            topInset: Theme.touchTarget / 5
            bottomInset: Theme.touchTarget / 5
            background: Rectangle {
                radius: width / 2
                color: Theme.destructive
            }
            contentItem: Item {
                Rectangle {
                    anchors.centerIn: parent
                    width: Theme.touchTarget / 3
                    height: Math.max(2, Theme.touchTarget / 16)
                    color: Theme.textOnAccent
                }
            }
            Accessible.ignored: !editControl.visible
            Accessible.name: qsTr("Delete %1").arg(row.nameLine.trim().length > 0 ? row.nameLine : numberLine.text)
            Accessible.onPressAction: row.toggleOpen()
            onClicked: row.toggleOpen()
        }
    }
}
