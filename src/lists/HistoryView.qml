pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
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

    property int sizeCategory: Theme.sizeCategory
    required property HistoryViewModel vm
    readonly property Service service: vm.service
    property bool editMode: false
    property bool showingCallAlert: false
    readonly property bool isInputActive: searchBar.editing

    readonly property int searchBarInset: ContentSizeCategory.searchBarInset(historyView.sizeCategory)

    title: qsTr("History")
    focus: true
    Accessible.role: Accessible.Pane
    Accessible.name: title
    // The window's background shows through.
    background: null

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
        searchBar.release()
        historyView.forceActiveFocus()
    }

    // 4. The rows, under the search and the count, which scroll away with
    // them: on a short window (a phone in landscape at the largest text)
    // the rows get the room.
    ListView {
        id: historyList
        objectName: "historyList"
        anchors.fill: parent
        topMargin: listTop.height
        clip: true
        model: historyView.vm.filteredContacts
        boundsBehavior: Flickable.StopAtBounds
        // Rows that leave the list wait in a pool for the next ones.
        reuseItems: true
        // Rows are made as they come into view: none waits off screen
        // for a screen reader to find.
        cacheBuffer: 0
        // The gap between rows shows the window as a separator line.
        spacing: 1
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Call history")
        ScrollIndicator.vertical: ScrollIndicator { }
        bottomMargin: emptyState.visible ? emptyState.height : 0
        // What sits above the rows is in sight once laid out, and again when
        // its height changes.
        onTopMarginChanged: contentY = originY - topMargin
        delegate: HistoryRow {
            editMode: historyView.editMode
            deleteWidth: historyView.deleteWidth
            onTapped: (index) => historyView.tapRow(index)
            onDeleteRequested: (index) => historyView.vm.deleteRows([index])
        }

        Connections {
            target: historyView.vm
            // A new search shows its first matches, under the search field.
            function onSearchTextChanged() {
                historyList.positionViewAtBeginning()
                historyList.contentY = historyList.originY - historyList.topMargin
            }
        }
    }

    ColumnLayout {
        id: listTop
        width: parent.width
        y: Math.min(0, historyList.originY - historyList.contentY - historyList.topMargin)
        spacing: 0

        // 1. Search.
        SearchBar {
            id: searchBar
            Layout.fillWidth: true
            Layout.margins: historyView.searchBarInset
            cancelName: "searchCancelButton"
            text: historyView.vm.searchText
            onEdited: (text) => historyView.vm.searchText = text
            onCancelled: historyView.endSearch()
        }

        // 2. Edit / Done, and 3. the count of the listed records.
        // The count beside the edit button, or above it where both do not
        // fit on one line (the largest text sizes).
        GridLayout {
            id: countLine
            Layout.fillWidth: true
            Layout.leftMargin: Theme.spacingLarge
            Layout.rightMargin: Theme.spacingSmall
            columnSpacing: Theme.spacingSmall
            rowSpacing: 0
            columns: countLabel.implicitWidth + editButton.implicitWidth + Theme.spacingSmall <= countLine.width ? 2 : 1
            Label {
                id: countLabel
                objectName: "countLabel"
                Layout.fillWidth: true
                text: qsTr("Total Contacts") + ": " + historyView.vm.filteredContacts.count // the caption is translated, "caption: n" is not
                font.pointSize: Theme.footnoteSize
                color: Theme.secondaryText
                wrapMode: Text.Wrap
            }
            Button {
                id: editButton
                objectName: "editButton"
                text: historyView.editMode ? qsTr("Done") : qsTr("Edit")
                flat: true
                font.capitalization: Font.MixedCase
                font.pointSize: Theme.bodySize
                font.bold: historyView.editMode
                focusPolicy: Qt.NoFocus
                Accessible.name: text
                Accessible.onPressAction: clicked()
                onClicked: historyView.editMode = !historyView.editMode
            }
        }
    }

    // Without records, a hint where the rows would be; it follows the
    // search above it, which the list scrolls away when the window is short.
    ColumnLayout {
        id: emptyState
        objectName: "emptyState"
        visible: historyView.vm.filteredContacts.count === 0
        anchors.top: listTop.bottom
        x: Theme.spacingHuge
        width: historyView.width - Theme.spacingHuge * 2
        height: Math.max(historyView.height - listTop.height, implicitHeight)
        spacing: Theme.spacingSmall
        Item { Layout.fillHeight: true }
        Label {
            objectName: "emptyTitle"
            Layout.fillWidth: true
            text: qsTr("No history calls to show")
            font.pointSize: Theme.headlineSize
            font.weight: Font.DemiBold
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Label {
            objectName: "emptyHint"
            Layout.fillWidth: true
            text: qsTr("Remember: don't forget to switch on \"Auto Save to History\" in settings to save your calls.")
            font.pointSize: Theme.footnoteSize
            color: Theme.secondaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Item { Layout.fillHeight: true }
    }

    // The rows' delete button fits its caption.
    readonly property real deleteWidth: Math.max(Theme.touchTarget * 2, deleteCaption.width + Theme.spacingLarge * 2)
    TextMetrics {
        id: deleteCaption
        text: qsTr("Delete")
        font.pointSize: Theme.bodySize
    }

    PopupOnDemand {
        asked: historyView.showingCallAlert
        content: Item {
            CallPrivacyDialog {
                objectName: "callPrivacyDialog"
                visible: historyView.showingCallAlert
                onClosed: historyView.showingCallAlert = false
                onPrivateDialingChosen: historyView.vm.callSelectedContact(true)
                onNormalDialingChosen: historyView.vm.callSelectedContact(false)
            }
        }
    }
}
