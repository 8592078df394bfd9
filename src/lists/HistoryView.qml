pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts
import Quieton.Core
import Quieton.Lists

// The history tab: the recorded calls with a search field, an edit mode for
// deleting them, and the call-privacy question for calling a number again.
// A call that cannot be placed from here ends silently: this screen has no
// dialling-error alert.
Page {
    id: historyView
    objectName: "historyView"

    required property HistoryViewModel vm
    readonly property Service service: vm.service
    property bool editMode: false
    property bool showingCallAlert: false
    readonly property bool isInputActive: searchField.activeFocus

    // Sizes follow the text size: a text set larger than the style's 16 px
    // gets the roomier insets of the larger text categories.
    readonly property real textScale: searchField.font.pixelSize > 0 ? searchField.font.pixelSize / 16 : 1
    readonly property int searchBarInset: textScale >= 1.9 ? 50 : textScale >= 1.4 ? 40 : 25
    readonly property color systemGrey: "#8E8E93"
    readonly property color destructiveRed: "#FF3B30"

    focus: true
    background: Rectangle { color: "white" }

    // Tapping a row: the record is selected in either mode; outside edit mode
    // the tap also toggles the call-privacy question.
    function tapRow(row) {
        vm.selectRow(row)
        if (!editMode)
            showingCallAlert = !showingCallAlert
    }

    function endSearch() {
        vm.searchText = ""
        vm.applySearch()
        searchField.focus = false
        historyView.forceActiveFocus()
    }

    onShowingCallAlertChanged: {
        if (showingCallAlert)
            callPrivacyDialog.open()
        else
            callPrivacyDialog.close()
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        // 1. Search.
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: historyView.searchBarInset
            Layout.bottomMargin: 8
            spacing: 12

            Rectangle {
                id: searchBox
                Layout.fillWidth: true
                Layout.preferredHeight: Math.max(40, searchField.implicitHeight * 0.8)
                radius: 10
                color: "#EFEFF4"

                IconImage {
                    id: searchIcon
                    anchors.left: parent.left
                    anchors.leftMargin: 10
                    anchors.verticalCenter: parent.verticalCenter
                    source: "qrc:/Quieton/icons/magnifyingglass.svg"
                    sourceSize.width: 18
                    sourceSize.height: 18
                    color: historyView.systemGrey
                    Accessible.ignored: true
                }
                TextField {
                    id: searchField
                    objectName: "searchField"
                    anchors.left: searchIcon.right
                    anchors.right: parent.right
                    anchors.leftMargin: 6
                    anchors.rightMargin: 8
                    anchors.verticalCenter: parent.verticalCenter
                    placeholderText: qsTr("Search")
                    text: historyView.vm.searchText
                    background: null
                    topPadding: 6
                    bottomPadding: 6
                    leftPadding: 0
                    inputMethodHints: Qt.ImhNoPredictiveText
                    Accessible.name: qsTr("Search")
                    onTextEdited: historyView.vm.searchText = text
                }
            }
            Button {
                objectName: "searchCancelButton"
                visible: historyView.isInputActive
                text: qsTr("Cancel")
                flat: true
                font.capitalization: Font.MixedCase
                padding: 4
                // Beside the field without making the bar taller.
                Layout.preferredHeight: searchBox.height
                focusPolicy: Qt.NoFocus
                onClicked: historyView.endSearch()
            }
        }

        // 2. Edit / Done.
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 20
            Layout.rightMargin: 12
            // 3. The count of the listed records.
            Label {
                objectName: "countLabel"
                Layout.fillWidth: true
                text: qsTr("Total Contacts") + ": " + historyView.vm.filteredContacts.count
                font.pixelSize: 15
                color: historyView.systemGrey
            }
            Button {
                objectName: "editButton"
                text: historyView.editMode ? qsTr("Done") : qsTr("Edit")
                flat: true
                font.capitalization: Font.MixedCase
                font.bold: historyView.editMode
                focusPolicy: Qt.NoFocus
                onClicked: historyView.editMode = !historyView.editMode
            }
        }

        // 4. The body.
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            ColumnLayout {
                objectName: "emptyState"
                visible: historyView.vm.filteredContacts.count === 0
                anchors.centerIn: parent
                width: parent.width - 64
                spacing: 10
                Label {
                    objectName: "emptyTitle"
                    Layout.fillWidth: true
                    text: qsTr("No history calls to show")
                    font.pixelSize: 18
                    font.weight: Font.DemiBold
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                }
                Label {
                    objectName: "emptyHint"
                    Layout.fillWidth: true
                    text: qsTr("Remember: don't forget to switch on \"Auto Save to History\" in settings to save your calls.")
                    font.pixelSize: 15
                    color: historyView.systemGrey
                    horizontalAlignment: Text.AlignHCenter
                    wrapMode: Text.Wrap
                }
            }

            ListView {
                id: historyList
                objectName: "historyList"
                anchors.fill: parent
                visible: historyView.vm.filteredContacts.count > 0
                clip: true
                model: historyView.vm.filteredContacts
                boundsBehavior: Flickable.StopAtBounds
                // Rows that leave the list wait in a pool for the next ones.
                reuseItems: true
                ScrollIndicator.vertical: ScrollIndicator { }
                delegate: HistoryRow {
                    width: ListView.view.width
                    editMode: historyView.editMode
                    onTapped: (index) => historyView.tapRow(index)
                    onDeleteRequested: (index) => historyView.vm.deleteRows([index])
                }

                Connections {
                    target: historyView.vm
                    // A new search shows its first matches.
                    function onSearchTextChanged() { historyList.positionViewAtBeginning() }
                }
            }
        }
    }

    CallPrivacyDialog {
        id: callPrivacyDialog
        objectName: "callPrivacyDialog"
        onClosed: historyView.showingCallAlert = false
        onPrivateDialingChosen: historyView.vm.callSelectedContact(true)
        onNormalDialingChosen: historyView.vm.callSelectedContact(false)
    }

    // One recorded call. Swiping it to the left uncovers its delete button;
    // in edit mode the round control in front of it does the same. The
    // control lies over the row rather than in it: a swipe row keeps the
    // presses on its own content for itself.
    component HistoryRow: Item {
        id: cell
        property bool editMode
        readonly property color systemGrey: "#8E8E93"
        readonly property color destructiveRed: "#FF3B30"
        signal tapped(int index)
        signal deleteRequested(int index)

        required property int index
        required property var objectId
        required property var firstName
        required property var lastName
        required property var telephone
        required property var time
        required property bool callHidden

        readonly property string notAvailable: qsTr("N/A")
        readonly property string nameLine: (lastName === undefined ? notAvailable : lastName) + " "
                                           + (firstName === undefined ? notAvailable : firstName)
        readonly property string numberText: telephone === undefined ? notAvailable : telephone
        readonly property string timeText: time === undefined ? notAvailable : time
        readonly property string privacyText: callHidden ? qsTr("Hidden") : qsTr("Normal Dialing")
        readonly property int deleteWidth: 96

        implicitHeight: row.implicitHeight
        // A row that comes to show another record shows it closed.
        onObjectIdChanged: row.swipe.close()

        SwipeDelegate {
            id: row
            objectName: "historyRow_" + cell.index
            anchors.fill: parent
            padding: 0
            leftPadding: cell.editMode ? 56 : 16
            rightPadding: 16
            topPadding: 10
            bottomPadding: 10
            focusPolicy: Qt.NoFocus
            Accessible.name: cell.nameLine + ", " + cell.numberText + ", " + cell.timeText + ", " + cell.privacyText

            onClicked: cell.tapped(cell.index)

            Connections {
                target: cell
                function onEditModeChanged() {
                    if (!cell.editMode)
                        row.swipe.close()
                }
            }

            background: Rectangle {
                color: row.pressed ? "#E5E5EA" : "white"
                Rectangle {
                    anchors.left: parent.left
                    anchors.right: parent.right
                    anchors.bottom: parent.bottom
                    anchors.leftMargin: 16
                    height: 1
                    color: "#E5E5EA"
                }
            }

            // Plain texts placed by hand: a search lays out the rows on
            // screen again, and labels in layouts cost most of a keystroke.
            contentItem: Item {
                implicitHeight: numberText.y + numberText.height + 2 + timeText.height
                Text {
                    objectName: "nameLine"
                    width: parent.width - privacyMark.width - 12
                    text: cell.nameLine
                    font.pixelSize: 17
                    font.weight: Font.DemiBold
                    color: "#1C1C1E"
                    elide: Text.ElideRight
                }
                Text {
                    id: numberText
                    objectName: "numberLine"
                    y: 24
                    width: parent.width - privacyMark.width - 12
                    text: cell.numberText
                    font.pixelSize: 15
                    color: "#1C1C1E"
                    elide: Text.ElideRight
                }
                Text {
                    id: timeText
                    objectName: "timeLine"
                    y: numberText.y + numberText.height + 2
                    text: cell.timeText
                    font.pixelSize: 13
                    color: cell.systemGrey
                }
                Text {
                    id: privacyMark
                    objectName: "privacyMark"
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: cell.privacyText
                    font.pixelSize: 13
                    font.weight: Font.DemiBold
                    color: cell.callHidden ? "#34C759" : cell.systemGrey
                }
            }

            // The swipe's items get their clicks through the attached signal.
            swipe.right: Rectangle {
                objectName: "swipeDeleteButton"
                width: cell.deleteWidth
                height: row.height
                // Placed in the row, not anchored to a parent that a row
                // being reused or removed no longer has.
                x: row.width - width
                color: cell.destructiveRed
                Accessible.role: Accessible.Button
                Accessible.name: qsTr("Delete")
                SwipeDelegate.onClicked: cell.deleteRequested(cell.index)
                Accessible.onPressAction: cell.deleteRequested(cell.index)

                Label {
                    anchors.centerIn: parent
                    text: qsTr("Delete")
                    color: "white"
                    font.pixelSize: 16
                    font.weight: Font.DemiBold
                }
            }
        }

        AbstractButton {
            objectName: "editDeleteControl"
            visible: cell.editMode
            x: 16 + row.swipe.position * cell.deleteWidth
            anchors.verticalCenter: parent.verticalCenter
            width: 28
            height: 28
            focusPolicy: Qt.NoFocus
            Accessible.role: Accessible.Button
            Accessible.name: qsTr("Delete %1").arg(cell.nameLine.trim().length > 0 ? cell.nameLine : cell.numberText)
            background: Rectangle {
                radius: width / 2
                color: cell.destructiveRed
                Rectangle {
                    anchors.centerIn: parent
                    width: 12
                    height: 2
                    color: "white"
                }
            }
            onClicked: {
                if (row.swipe.position < 0)
                    row.swipe.close()
                else
                    row.swipe.open(SwipeDelegate.Right)
            }
        }
    }
}
