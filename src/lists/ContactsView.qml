pragma ComponentBehavior: Bound

import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Lists

// The contacts tab: the address book with a search field, the sort key and
// direction, and a tap on a person to call them privately or not.
Page {
    id: contactsView
    objectName: "contactsView"

    property int sizeCategory: Theme.sizeCategory
    required property ContactsViewModel vm
    property bool showingCallAlert: false
    property bool showingErrorDialNumberAlert: false
    readonly property bool isInputContactsActive: searchBar.editing
    readonly property Service service: vm.service

    readonly property int searchInset: ContentSizeCategory.searchBarInset(contactsView.sizeCategory)
    // The size table gives a phone's points, which are device-independent
    // pixels: three quarters of a font point at 96 dots per inch.
    readonly property real segmentPointSize: ContentSizeCategory.sortSegmentFontSize(contactsView.sizeCategory) * 0.75

    title: qsTr("Contacts")
    Accessible.role: Accessible.Pane
    Accessible.name: title
    // The window's background shows through.
    background: null

    // Called by the main screen each time the tab is shown.
    function appeared() {
        vm.updateContacts()
    }

    function cancelSearch() {
        vm.searchText = ""
        // The page keeps the keyboard focus, no longer the field.
        searchBar.release()
        contactsView.forceActiveFocus()
    }

    function placeCall(hidden) {
        showingCallAlert = false
        if (vm.callSelectedContact(hidden))
            showingErrorDialNumberAlert = true
    }


    Connections {
        target: contactsView.vm
        function onSortIndexSelectedChanged() {
            sortPicker.currentIndex = contactsView.vm.sortIndexSelected
            contactsView.vm.sortContacts()
        }
    }

    // 4. The people, under the search, the sort and the count, which scroll
    // away with them: on a short window (a phone in landscape at the
    // largest text) the rows get the room.
    ListView {
        id: list
        objectName: "contactsList"
        anchors.fill: parent
        topMargin: listTop.height
        clip: true
        reuseItems: true
        // Rows are made as they come into view: none waits off screen
        // for a screen reader to find.
        cacheBuffer: 0
        // The gap between rows shows the window as a separator line.
        spacing: 1
        boundsBehavior: Flickable.StopAtBounds
        model: contactsView.vm.visibleContacts
        Accessible.role: Accessible.List
        Accessible.name: qsTr("Contact list")
        ScrollIndicator.vertical: ScrollIndicator { }
        bottomMargin: emptyNote.visible ? emptyNote.height : 0
        // What sits above the rows is in sight once laid out, and again when
        // its height changes.
        onTopMarginChanged: contentY = originY - topMargin

        Connections {
            target: contactsView.vm
            // A new search shows its first matches, under the search field.
            function onSearchTextChanged() {
                list.positionViewAtBeginning()
                list.contentY = list.originY - list.topMargin
            }
        }

        delegate: ContactRow {
            onTapped: (index) => {
                contactsView.vm.selectVisibleContact(index)
                contactsView.showingCallAlert = !contactsView.showingCallAlert
            }
        }
    }

    ColumnLayout {
        id: listTop
        width: parent.width
        y: Math.min(0, list.originY - list.contentY - list.topMargin)
        spacing: 0

        // 1. Search bar.
        SearchBar {
            id: searchBar
            Layout.fillWidth: true
            Layout.margins: contactsView.searchInset
            text: contactsView.vm.searchText
            onEdited: (text) => contactsView.vm.searchText = text
            onCancelled: contactsView.cancelSearch()
        }

        // 2. Sort key and direction.
        RowLayout {
            Layout.fillWidth: true
            Layout.leftMargin: Theme.spacingLarge
            Layout.rightMargin: Theme.spacingSmall
            spacing: Theme.spacingSmall

            TabBar {
                id: sortPicker
                objectName: "sortPicker"
                Layout.fillWidth: true
                currentIndex: contactsView.vm.sortIndexSelected
                Accessible.name: qsTr("Sort by")
                background: Rectangle {
                    color: Theme.raised
                    radius: Theme.radius
                }
                Repeater {
                    model: [qsTr("First Name"), qsTr("Last Name"), qsTr("Telephone")]
                    delegate: TabButton {
                        id: segment
                        required property int index
                        required property string modelData
                        readonly property bool selected: contactsView.vm.sortIndexSelected === segment.index
                        objectName: "sortSegment" + index
                        // The bar follows its checked button: buttons made after the
                        // bar took its index (a screen made a piece per frame) would
                        // otherwise leave the last one current.
                        checked: segment.selected
                        // The bar shares its width out evenly; a caption's own
                        // width, which shrinks to fit, is not asked for.
                        implicitWidth: Theme.touchTarget
                        text: modelData
                        focusPolicy: Qt.NoFocus
                        font.pointSize: contactsView.segmentPointSize
                        font.capitalization: Font.MixedCase
                        font.weight: segment.selected ? Font.DemiBold : Font.Normal
                        Accessible.name: modelData
                        Accessible.onPressAction: segment.clicked()
                        // The largest sizes wrap and shrink to what fits rather than elide.
                        contentItem: Text {
                            text: segment.modelData
                            font: segment.font
                            wrapMode: Text.WordWrap
                            fontSizeMode: Text.HorizontalFit
                            minimumPointSize: contactsView.segmentPointSize / 4
                            color: segment.selected ? Theme.text : Theme.secondaryText
                            elide: Text.ElideRight
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                        onClicked: contactsView.vm.sortIndexSelected = segment.index
                    }
                }
            }
            ToolButton {
                objectName: "sortDirectionButton"
                icon.source: "qrc:/Quieton/icons/arrow.up.arrow.down.square.svg"
                icon.width: Theme.iconSize
                icon.height: Theme.iconSize
                icon.color: Theme.link
                focusPolicy: Qt.NoFocus
                Accessible.name: contactsView.vm.comparator ? qsTr("Sort descending") : qsTr("Sort ascending")
                Accessible.onPressAction: clicked()
                onClicked: contactsView.vm.comparator = !contactsView.vm.comparator
            }
        }

        // 3. Count.
        Label {
            objectName: "totalContacts"
            Layout.fillWidth: true
            Layout.leftMargin: Theme.spacingLarge
            Layout.rightMargin: Theme.spacingLarge
            Layout.topMargin: Theme.spacing
            Layout.bottomMargin: Theme.spacingSmall
            text: qsTr("Total Contacts") + ": " + contactsView.vm.visibleContacts.count // the caption is translated, "caption: n" is not
            color: Theme.secondaryText
            font.pointSize: Theme.footnoteSize
            wrapMode: Text.Wrap
        }
    }

    // Without people to show, why, where the rows would be; it follows
    // the search above it, which the list scrolls away when the window is short.
    Item {
        id: emptyNote
        visible: contactsView.vm.visibleContacts.count === 0
        anchors.top: listTop.bottom
        width: contactsView.width
        height: Math.max(contactsView.height - listTop.height, settingsLink.implicitHeight, noContacts.implicitHeight)

        Button {
            id: settingsLink
            objectName: "enableInSettings"
            visible: contactsView.vm.accessDenied
            anchors.centerIn: parent
            width: parent.width - Theme.spacingLarge * 2
            flat: true
            focusPolicy: Qt.NoFocus
            text: qsTr("To view contacts, enable it in settings.")
            font.capitalization: Font.MixedCase
            font.pointSize: Theme.bodySize
            Accessible.role: Accessible.Link
            Accessible.name: text
            Accessible.onPressAction: clicked()
            contentItem: Label {
                text: qsTr("To view contacts, enable it in settings.")
                font: settingsLink.font
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: Theme.link
            }
            onClicked: contactsView.vm.openSettings()
        }

        Label {
            id: noContacts
            objectName: "noContactsFound"
            visible: !contactsView.vm.accessDenied
            anchors.centerIn: parent
            width: parent.width - Theme.spacingLarge * 2
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            text: qsTr("No Contacts Found")
            color: Theme.secondaryText
            font.pointSize: Theme.bodySize
        }
    }

    PopupOnDemand {
        asked: contactsView.showingCallAlert
        content: Item {
            CallPrivacyDialog {
                objectName: "callPrivacyDialog"
                visible: contactsView.showingCallAlert
                onPrivateDialingChosen: contactsView.placeCall(true)
                onNormalDialingChosen: contactsView.placeCall(false)
                onClosed: contactsView.showingCallAlert = false
            }
        }
    }

    PopupOnDemand {
        asked: contactsView.showingErrorDialNumberAlert
        content: Item {
            DialErrorAlert {
                objectName: "dialErrorAlert"
                visible: contactsView.showingErrorDialNumberAlert
                service: contactsView.service
                onClosed: contactsView.showingErrorDialNumberAlert = false
            }
        }
    }
}
