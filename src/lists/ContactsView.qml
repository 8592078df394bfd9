pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts
import Quieton.Core
import Quieton.Lists

// The contacts tab: the address book with a search field, the sort key and
// direction, and a tap on a person to call them privately or not.
Page {
    id: contactsView
    objectName: "contactsView"

    property int sizeCategory: ContentSizeCategory.current
    required property ContactsViewModel vm
    property bool showingCallAlert: false
    property bool showingErrorDialNumberAlert: false
    readonly property bool isInputContactsActive: searchField.activeFocus
    readonly property Service service: vm.service

    readonly property int searchInset: ContentSizeCategory.searchBarInset(sizeCategory)
    readonly property int segmentFontSize: ContentSizeCategory.sortSegmentFontSize(sizeCategory)
    readonly property color systemGrey: "#8E8E93"
    readonly property color tint: "#007AFF"

    background: Rectangle { color: "white" }

    // Called by the main screen each time the tab is shown.
    function appeared() {
        vm.updateContacts()
    }

    function cancelSearch() {
        vm.searchText = ""
        // The page keeps the keyboard focus, no longer the field.
        searchField.focus = false
        contactsView.forceActiveFocus()
    }

    function placeCall(hidden) {
        showingCallAlert = false
        if (vm.callSelectedContact(hidden))
            showingErrorDialNumberAlert = true
    }

    onShowingCallAlertChanged: {
        if (showingCallAlert)
            privacyDialog.open()
        else
            privacyDialog.close()
    }
    onShowingErrorDialNumberAlertChanged: {
        if (showingErrorDialNumberAlert)
            errorAlert.open()
        else
            errorAlert.close()
    }

    Connections {
        target: contactsView.vm
        function onSortIndexSelectedChanged() { contactsView.vm.sortContacts() }
    }

    ColumnLayout {
        anchors.fill: parent
        spacing: 0

        // 1. Search bar.
        RowLayout {
            Layout.fillWidth: true
            Layout.margins: contactsView.searchInset
            spacing: 8

            TextField {
                id: searchField
                objectName: "searchField"
                Layout.fillWidth: true
                placeholderText: qsTr("Search")
                text: contactsView.vm.searchText
                onTextEdited: contactsView.vm.searchText = text
                leftPadding: 36
                inputMethodHints: Qt.ImhNoPredictiveText
                Accessible.name: qsTr("Search")

                IconImage {
                    anchors.left: parent.left
                    anchors.leftMargin: 8
                    anchors.verticalCenter: parent.verticalCenter
                    source: "qrc:/Quieton/icons/magnifyingglass.svg"
                    sourceSize.width: 20
                    sourceSize.height: 20
                    color: contactsView.systemGrey
                }
            }
            Button {
                objectName: "cancelSearchButton"
                visible: contactsView.isInputContactsActive
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                focusPolicy: Qt.NoFocus
                onClicked: contactsView.cancelSearch()
            }
        }

        // 2. Sort key and direction.
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 8
            spacing: 8

            Rectangle {
                id: segments
                objectName: "sortPicker"
                Layout.fillWidth: true
                Layout.preferredHeight: Math.max(32, contactsView.segmentFontSize + 16)
                radius: 8
                color: "#EEEEEF"
                Accessible.role: Accessible.PageTabList
                Accessible.name: qsTr("Sort by")

                RowLayout {
                    anchors.fill: parent
                    anchors.margins: 2
                    spacing: 0
                    Repeater {
                        model: [qsTr("First Name"), qsTr("Last Name"), qsTr("Telephone")]
                        delegate: AbstractButton {
                            id: segment
                            required property int index
                            required property string modelData
                            objectName: "sortSegment" + index
                            Layout.fillWidth: true
                            Layout.fillHeight: true
                            checkable: false
                            leftPadding: 4
                            rightPadding: 4
                            focusPolicy: Qt.NoFocus
                            readonly property bool selected: contactsView.vm.sortIndexSelected === segment.index
                            Accessible.role: Accessible.PageTab
                            Accessible.name: modelData
                            Accessible.checkable: true
                            Accessible.checked: selected
                            background: Rectangle {
                                radius: 7
                                color: segment.selected ? "white" : "transparent"
                                border.width: segment.selected ? 0.5 : 0
                                border.color: "#D1D1D6"
                            }
                            contentItem: Text {
                                text: segment.modelData
                                font.pixelSize: contactsView.segmentFontSize
                                // The largest sizes shrink to what fits rather than elide.
                                fontSizeMode: Text.HorizontalFit
                                minimumPixelSize: 12
                                font.weight: segment.selected ? Font.DemiBold : Font.Normal
                                color: "#1C1C1E"
                                elide: Text.ElideRight
                                horizontalAlignment: Text.AlignHCenter
                                verticalAlignment: Text.AlignVCenter
                            }
                            onClicked: contactsView.vm.sortIndexSelected = segment.index
                        }
                    }
                }
            }
            ToolButton {
                objectName: "sortDirectionButton"
                icon.source: "qrc:/Quieton/icons/arrow.up.arrow.down.square.svg"
                icon.width: 28
                icon.height: 28
                icon.color: contactsView.tint
                focusPolicy: Qt.NoFocus
                Accessible.name: contactsView.vm.comparator ? qsTr("Sort descending") : qsTr("Sort ascending")
                onClicked: contactsView.vm.comparator = !contactsView.vm.comparator
            }
        }

        // 3. Count.
        Label {
            objectName: "totalContacts"
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.topMargin: 10
            Layout.bottomMargin: 6
            text: qsTr("Total Contacts") + ": " + contactsView.vm.visibleContacts.count
            color: contactsView.systemGrey
            font.pixelSize: 15
        }

        // 4. Body.
        Item {
            Layout.fillWidth: true
            Layout.fillHeight: true

            AbstractButton {
                objectName: "enableInSettings"
                visible: contactsView.vm.accessDenied
                anchors.centerIn: parent
                width: Math.min(implicitWidth, parent.width - 32)
                focusPolicy: Qt.NoFocus
                Accessible.role: Accessible.Link
                text: qsTr("To view contacts, enable it in settings.")
                Accessible.name: text
                contentItem: Text {
                    text: qsTr("To view contacts, enable it in settings.")
                    wrapMode: Text.Wrap
                    horizontalAlignment: Text.AlignHCenter
                    color: contactsView.tint
                    font.pixelSize: 17
                }
                background: null
                onClicked: contactsView.vm.openSettings()
            }

            Label {
                objectName: "noContactsFound"
                visible: !contactsView.vm.accessDenied && contactsView.vm.visibleContacts.count === 0
                anchors.centerIn: parent
                text: qsTr("No Contacts Found")
                color: contactsView.systemGrey
                font.pixelSize: 17
            }

            ListView {
                id: list
                objectName: "contactsList"
                anchors.fill: parent
                visible: !contactsView.vm.accessDenied && contactsView.vm.visibleContacts.count > 0
                clip: true
                reuseItems: true
                boundsBehavior: Flickable.StopAtBounds
                model: contactsView.vm.visibleContacts
                ScrollIndicator.vertical: ScrollIndicator { }

                Connections {
                    target: contactsView.vm
                    // A new search shows its first matches.
                    function onSearchTextChanged() { list.positionViewAtBeginning() }
                }

                // Light rows (plain texts placed by hand): a search lays out
                // the rows on screen again, which with Controls labels in
                // layouts made a keystroke at 5 000 contacts 7.5 ms (median)
                // to 15 ms, against 3.7 to 6.5 ms now.
                delegate: AbstractButton {
                    id: row
                    required property int index
                    required property string firstName
                    required property string lastName
                    required property string telephone
                    objectName: "contactRow" + index
                    width: ListView.view.width
                    height: 64
                    focusPolicy: Qt.NoFocus
                    Accessible.role: Accessible.Button
                    Accessible.name: (firstName + " " + lastName).trim() + ", " + telephone
                    background: Rectangle { color: row.pressed ? "#E5E5EA" : "white" }

                    Text {
                        id: firstNameText
                        x: 16
                        y: 11
                        width: Math.min(implicitWidth, (row.width - 32) / 2)
                        text: row.firstName
                        font.pixelSize: 17
                        color: "#1C1C1E"
                        elide: Text.ElideRight
                    }
                    Text {
                        anchors.left: firstNameText.right
                        anchors.leftMargin: 5
                        anchors.right: parent.right
                        anchors.rightMargin: 16
                        y: 11
                        text: row.lastName
                        font.pixelSize: 17
                        font.weight: Font.DemiBold
                        color: "#1C1C1E"
                        elide: Text.ElideRight
                    }
                    Text {
                        x: 16
                        y: 35
                        width: row.width - 32
                        text: row.telephone
                        font.pixelSize: 14
                        color: contactsView.systemGrey
                        elide: Text.ElideRight
                    }
                    Rectangle {
                        anchors.bottom: parent.bottom
                        anchors.left: parent.left
                        anchors.leftMargin: 16
                        anchors.right: parent.right
                        height: 1
                        color: "#E5E5EA"
                    }

                    onClicked: {
                        contactsView.vm.selectVisibleContact(row.index)
                        contactsView.showingCallAlert = !contactsView.showingCallAlert
                    }
                }
            }
        }
    }

    CallPrivacyDialog {
        id: privacyDialog
        objectName: "callPrivacyDialog"
        onPrivateDialingChosen: contactsView.placeCall(true)
        onNormalDialingChosen: contactsView.placeCall(false)
        onClosed: contactsView.showingCallAlert = false
    }

    DialErrorAlert {
        id: errorAlert
        objectName: "dialErrorAlert"
        service: contactsView.service
        onClosed: contactsView.showingErrorDialNumberAlert = false
    }
}
