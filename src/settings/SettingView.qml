pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Controls.Material
import QtQuick.Layouts
import Quieton

// The settings tab: the prefix (typed by hand or picked by country), the
// options every call starts with, help and information, and the two
// destructive actions. Every change goes straight to the settings store
// through the model.
Page {
    id: settingView
    objectName: "settingView"

    readonly property SettingViewModel vm: QuietonApp.makeSettingViewModel(settingView)
    // The shared update checker; tests hand in one of their own.
    property CheckUpdate checkNewVersionService: CheckUpdate
    readonly property Service service: Service

    property bool showingPrefixEditManually: false
    property bool showingPrefixByCountry: false
    property bool showingIsEmpty: false
    property bool showingIsResetSetting: false
    property bool showingIsClearAll: false
    property bool showingCodeMultiOptions: false
    property bool isSendFeedBackPresented: false
    property bool isUserGuideForQuietonPresented: false
    property bool isAboutPresented: false
    property string editingPrefixNumber: ""
    property bool isReadUserGuide: UserDefaultsService.boolForKey("isReadUserGuide")

    readonly property color groupedBackground: "#F2F2F7"
    readonly property color separatorColor: "#D1D1D6"
    readonly property color secondaryText: "#6C6C70"
    readonly property color tint: "#007AFF"
    readonly property color destructive: "#FF3B30"

    background: Rectangle { color: settingView.groupedBackground }

    // "OK" of the manual editor: the prefix is stored only when the rule
    // accepts it; otherwise the editor stays open with the rule shown.
    function saveManualPrefix() {
        if (!vm.saveManualPrefix(editingPrefixNumber)) {
            showingIsEmpty = true
            return
        }
        showingPrefixEditManually = !showingPrefixEditManually
    }

    // A row of the country list: the first stands for every other country.
    function chooseCountry(index, name) {
        showingPrefixByCountry = false
        if (index === 0)
            vm.selectAllOtherCountries()
        else if (vm.selectCountry(name))
            showingCodeMultiOptions = true
    }

    function updateNow() {
        vm.openStorePage(checkNewVersionService.urlAppStore)
    }

    onShowingPrefixByCountryChanged: showingPrefixByCountry ? countryDialog.open() : countryDialog.close()
    onShowingCodeMultiOptionsChanged: showingCodeMultiOptions ? choiceDialog.open() : choiceDialog.close()
    onShowingIsResetSettingChanged: showingIsResetSetting ? resetDialog.open() : resetDialog.close()
    onShowingIsClearAllChanged: showingIsClearAll ? clearAllDialog.open() : clearAllDialog.close()

    Flickable {
        id: list
        objectName: "settingsList"
        anchors.fill: parent
        contentHeight: sections.implicitHeight + 32
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { }

        ColumnLayout {
            id: sections
            x: 16
            y: 16
            width: list.width - 32
            spacing: 6

            // 1. The prefix.
            SectionHeader { text: qsTr("Private Call Setting") }
            Group {
                SettingRow {
                    objectName: "prefixRow"
                    iconName: "asterisk"
                    text: qsTr("Prefix:")
                    detail: settingView.vm.prefixNumber
                    Accessible.name: qsTr("Prefix:") + " " + settingView.vm.prefixNumber
                }
                SettingRow {
                    objectName: "editManuallyButton"
                    text: qsTr("Edit Manually")
                    textColor: settingView.tint
                    onClicked: {
                        settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
                        settingView.showingIsEmpty = false
                    }
                }
                SettingRow {
                    objectName: "editByCountryButton"
                    text: qsTr("Edit by country")
                    textColor: settingView.tint
                    last: true
                    onClicked: settingView.showingPrefixByCountry = true
                }
            }

            // 2. The options every call starts with.
            SectionHeader { text: qsTr("Auto setting startup") }
            Group {
                Toggle {
                    objectName: "autoHiddenNumberToggle"
                    text: qsTr("Auto Hide My Number")
                    value: settingView.vm.autoHiddenNumber
                    onUserToggled: (on) => settingView.vm.autoHiddenNumber = on
                }
                Toggle {
                    objectName: "autoSaveToHistoryToggle"
                    text: qsTr("Auto Save To History")
                    value: settingView.vm.autoSaveToHistory
                    onUserToggled: (on) => settingView.vm.autoSaveToHistory = on
                }
                Label {
                    text: qsTr("Auto Sort Contacts By:")
                    color: settingView.secondaryText
                    Layout.fillWidth: true
                    Layout.leftMargin: 16
                    Layout.topMargin: 12
                    Layout.bottomMargin: 2
                    wrapMode: Text.Wrap
                }
                Toggle {
                    objectName: "sortByFirstNameToggle"
                    text: qsTr("First Name")
                    value: settingView.vm.autoSortByFirstName
                    onUserToggled: (on) => settingView.vm.autoSortByFirstName = on
                }
                Toggle {
                    objectName: "sortByLastNameToggle"
                    text: qsTr("Last Name")
                    value: settingView.vm.autoSortByLastName
                    onUserToggled: (on) => settingView.vm.autoSortByLastName = on
                }
                Toggle {
                    objectName: "sortByTelephoneToggle"
                    text: qsTr("Telephone")
                    value: settingView.vm.autoSortByTelephone
                    last: true
                    onUserToggled: (on) => settingView.vm.autoSortByTelephone = on
                }
            }

            // 3. Help and information.
            SectionHeader { text: qsTr("Help and information") }
            Group {
                SettingRow {
                    objectName: "versionRow"
                    text: qsTr("App version")
                    detail: settingView.vm.appVersion !== undefined ? settingView.vm.appVersion : ""
                    Accessible.name: qsTr("App version") + " " + detail
                    Button {
                        objectName: "updateNowButton"
                        visible: settingView.checkNewVersionService.isNeedUpdate
                        text: qsTr("Update Now")
                        font.capitalization: Font.MixedCase
                        flat: true
                        Material.foreground: settingView.tint
                        onClicked: settingView.updateNow()
                    }
                }
                SettingRow {
                    objectName: "userGuideRow"
                    text: qsTr("User Guide for Quieton")
                    chevron: true
                    onClicked: settingView.isUserGuideForQuietonPresented = true
                    IconImage {
                        objectName: "unreadMark"
                        visible: !settingView.isReadUserGuide
                        source: "qrc:/Quieton/icons/exclamationmark.circle.svg"
                        color: settingView.destructive
                        sourceSize.width: 22
                        sourceSize.height: 22
                        Accessible.role: Accessible.Graphic
                        Accessible.name: qsTr("Not read yet")
                    }
                }
                SettingRow {
                    objectName: "shareRow"
                    text: qsTr("Share with Friends")
                    chevron: true
                    onClicked: settingView.service.shareApp()
                }
                SettingRow {
                    objectName: "feedbackRow"
                    text: qsTr("Send Feedback")
                    chevron: true
                    onClicked: settingView.isSendFeedBackPresented = true
                }
                SettingRow {
                    objectName: "changeLanguageRow"
                    text: qsTr("Change Language")
                    chevron: true
                    onClicked: settingView.vm.openSystemSettings()
                }
                SettingRow {
                    objectName: "aboutRow"
                    text: qsTr("About")
                    chevron: true
                    last: true
                    onClicked: settingView.isAboutPresented = true
                }
            }

            // 4. Destructive actions.
            SectionHeader { text: qsTr("Data") }
            Group {
                SettingRow {
                    objectName: "resetSettingsButton"
                    text: qsTr("Reset Settings")
                    textColor: settingView.destructive
                    onClicked: settingView.showingIsResetSetting = true
                }
                SettingRow {
                    objectName: "clearAllButton"
                    text: qsTr("Clear All (Include history calls)")
                    textColor: settingView.destructive
                    last: true
                    onClicked: settingView.showingIsClearAll = true
                }
            }
        }
    }

    // The manual editor, floating over the screen while its flag is up;
    // however the popup goes away, the flag follows.
    PopupView {
        id: prefixEditor
        objectName: "prefixEditor"
        type: PopupLayout.Floating
        position: PopupLayout.Center
        appearFrom: PopupLayout.FromBottom
        isPresented: settingView.showingPrefixEditManually
        onIsPresentedChanged: {
            settingView.showingPrefixEditManually = isPresented
            if (isPresented)
                prefixField.forceActiveFocus()
        }

        Flickable {
            id: editorScroll
            implicitWidth: Math.min(settingView.width - 72, 380)
            implicitHeight: Math.min(editorColumn.implicitHeight, settingView.height * 0.6)
            contentHeight: editorColumn.implicitHeight
            clip: true
            boundsBehavior: Flickable.StopAtBounds
            ScrollIndicator.vertical: ScrollIndicator { }

            ColumnLayout {
                id: editorColumn
                width: editorScroll.width
                spacing: 12

                TextField {
                    id: prefixField
                    objectName: "prefixField"
                    Layout.fillWidth: true
                    placeholderText: qsTr("Enter your Prefix")
                    Accessible.name: placeholderText
                    text: settingView.editingPrefixNumber
                    onTextEdited: settingView.editingPrefixNumber = text
                    inputMethodHints: Qt.ImhNoAutoUppercase | Qt.ImhNoPredictiveText | Qt.ImhPreferNumbers
                    onAccepted: settingView.saveManualPrefix()
                }
                Label {
                    objectName: "prefixRuleText"
                    visible: settingView.showingIsEmpty
                    Layout.fillWidth: true
                    text: qsTr("Prefix Cannot Be Empty needs at least 2 characters and without spaces")
                    color: settingView.destructive
                    wrapMode: Text.Wrap
                }
                Label {
                    Layout.fillWidth: true
                    text: qsTr("Prefixes can vary among different mobile providers. Check with your mobile provider for the prefix for private dialing. Additional costs may apply. Please verify with your cellular carrier.")
                    color: settingView.secondaryText
                    font.pixelSize: 13
                    wrapMode: Text.Wrap
                }
                RowLayout {
                    Layout.fillWidth: true
                    spacing: 12
                    Button {
                        objectName: "prefixOkButton"
                        text: qsTr("OK")
                        font.capitalization: Font.MixedCase
                        highlighted: true
                        Layout.fillWidth: true
                        onClicked: settingView.saveManualPrefix()
                    }
                    Button {
                        objectName: "prefixCancelButton"
                        text: qsTr("Cancel")
                        font.capitalization: Font.MixedCase
                        Layout.fillWidth: true
                        onClicked: {
                            settingView.showingPrefixEditManually = !settingView.showingPrefixEditManually
                            settingView.showingIsEmpty = false
                        }
                    }
                }
            }
        }
    }

    // "Select By Country": every country of the catalogue as a button.
    Alert {
        id: countryDialog
        objectName: "countryDialog"
        title: qsTr("Select By Country")
        onClosed: settingView.showingPrefixByCountry = false

        contentItem: ColumnLayout {
            spacing: 12
            Label {
                Layout.fillWidth: true
                text: qsTr("Prefixes may vary depending on the cellular provider. Please consult the official documentation of your cellular provider for accurate information. Additional charges may apply, please verify with your cellular provider.")
                font.weight: Font.Light
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
            ListView {
                id: countryList
                objectName: "countryList"
                Layout.fillWidth: true
                // Whole rows and a half one, which tells that the list scrolls.
                Layout.preferredHeight: Math.min(contentHeight, 48 * Math.max(3, Math.floor(settingView.height * 0.4 / 48)) + 24)
                clip: true
                boundsBehavior: Flickable.StopAtBounds
                model: settingView.vm.countryList
                ScrollIndicator.vertical: ScrollIndicator { active: true }
                delegate: Button {
                    required property int index
                    required property string modelData
                    objectName: "country:" + modelData
                    width: ListView.view.width
                    text: modelData
                    flat: true
                    font.capitalization: Font.MixedCase
                    Material.foreground: settingView.tint
                    onClicked: settingView.chooseCountry(index, modelData)
                }
            }
        }
        footer: DialogButtonBox {
            Button {
                objectName: "countryCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                onClicked: countryDialog.close()
            }
        }
    }

    // The several prefixes of the chosen country.
    Alert {
        id: choiceDialog
        objectName: "choiceDialog"
        title: qsTr("There are several prefixes that can private your number. Please choose one.")
        onAboutToShow: choiceRows.model = settingView.vm.prefixChoices()
        onClosed: settingView.showingCodeMultiOptions = false

        contentItem: ColumnLayout {
            spacing: 0
            Repeater {
                id: choiceRows
                delegate: Button {
                    required property int index
                    required property var modelData
                    objectName: "choice" + index
                    Layout.fillWidth: true
                    text: modelData.caption
                    flat: true
                    font.capitalization: Font.MixedCase
                    Material.foreground: settingView.tint
                    onClicked: {
                        settingView.vm.choosePrefix(modelData.prefix)
                        choiceDialog.close()
                    }
                }
            }
        }
        footer: DialogButtonBox {
            Button {
                objectName: "choiceCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                font.bold: true
                onClicked: choiceDialog.close()
            }
        }
    }

    Alert {
        id: resetDialog
        objectName: "resetDialog"
        title: qsTr("Are you sure you want to reset settings?")
        message: qsTr("This action will reset your settings. Without delete you history calls.")
        onClosed: settingView.showingIsResetSetting = false
        footer: DialogButtonBox {
            Button {
                objectName: "resetCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                font.bold: true
                onClicked: resetDialog.close()
            }
            Button {
                objectName: "resetConfirmButton"
                text: qsTr("Reset")
                font.capitalization: Font.MixedCase
                flat: true
                Material.foreground: settingView.destructive
                onClicked: {
                    settingView.vm.resetSettings()
                    resetDialog.close()
                }
            }
        }
    }

    Alert {
        id: clearAllDialog
        objectName: "clearAllDialog"
        title: qsTr("Are you sure you want to Clear All Data?")
        message: qsTr("This action will reset you setting and delete all history data")
        onClosed: settingView.showingIsClearAll = false
        footer: DialogButtonBox {
            Button {
                objectName: "clearAllCancelButton"
                text: qsTr("Cancel")
                font.capitalization: Font.MixedCase
                flat: true
                font.bold: true
                onClicked: clearAllDialog.close()
            }
            Button {
                objectName: "clearAllConfirmButton"
                text: qsTr("Clear All")
                font.capitalization: Font.MixedCase
                flat: true
                Material.foreground: settingView.destructive
                onClicked: {
                    settingView.vm.clearAll()
                    clearAllDialog.close()
                }
            }
        }
    }

    // Full-screen covers, each made when shown and dropped when closed.
    Cover {
        objectName: "userGuideCover"
        presented: settingView.isUserGuideForQuietonPresented
        sourceComponent: Component { UserGuideForQuietonView { } }
        // The guide may have counted itself as read while it was open.
        onDismiss: {
            settingView.isUserGuideForQuietonPresented = false
            settingView.isReadUserGuide = UserDefaultsService.boolForKey("isReadUserGuide")
        }
    }
    Cover {
        objectName: "feedbackCover"
        presented: settingView.isSendFeedBackPresented
        sourceComponent: Component { SendFeedBackView { } }
        onDismiss: settingView.isSendFeedBackPresented = false
    }
    Cover {
        objectName: "aboutCover"
        presented: settingView.isAboutPresented
        sourceComponent: Component { AboutView { } }
        onDismiss: settingView.isAboutPresented = false
    }

    component SectionHeader: Label {
        Layout.fillWidth: true
        Layout.leftMargin: 16
        Layout.topMargin: 14
        font.pixelSize: 13
        font.capitalization: Font.AllUppercase
        color: "#6C6C70"
        Accessible.role: Accessible.Heading
    }

    // A white rounded group of rows.
    component Group: Rectangle {
        default property alias rows: groupColumn.data
        Layout.fillWidth: true
        implicitHeight: groupColumn.implicitHeight
        radius: 10
        color: "white"
        ColumnLayout {
            id: groupColumn
            width: parent.width
            spacing: 0
        }
    }

    // One tappable row: an optional icon, the caption, a detail text, extra
    // items on the right and an optional chevron.
    component SettingRow: ItemDelegate {
        id: row
        property string iconName: ""
        property string detail: ""
        property color textColor: "black"
        property bool chevron: false
        property bool last: false
        default property alias trailing: trailingItems.data

        Layout.fillWidth: true
        implicitHeight: Math.max(48, implicitContentHeight + 16)
        leftPadding: 16
        rightPadding: 12
        hoverEnabled: false
        Accessible.name: text
        // A plain pressed shade: a ripple keeps an image per visible row.
        background: Rectangle { color: row.pressed ? "#E5E5EA" : "transparent" }

        contentItem: RowLayout {
            spacing: 10
            IconImage {
                visible: row.iconName.length > 0
                source: row.iconName.length > 0 ? "qrc:/Quieton/icons/" + row.iconName + ".svg" : ""
                sourceSize.width: 20
                sourceSize.height: 20
                color: "#007AFF"
            }
            Label {
                text: row.text
                color: row.textColor
                font.pixelSize: 16
                wrapMode: Text.Wrap
                Layout.fillWidth: row.detail.length === 0
            }
            Label {
                objectName: "detail"
                visible: row.detail.length > 0
                text: row.detail
                color: "#6C6C70"
                font.pixelSize: 16
                horizontalAlignment: Text.AlignRight
                elide: Text.ElideLeft
                Layout.fillWidth: true
            }
            Row {
                id: trailingItems
                spacing: 6
                Layout.alignment: Qt.AlignVCenter
            }
            IconImage {
                visible: row.chevron
                source: "qrc:/Quieton/icons/chevron.right.svg"
                sourceSize.width: 14
                sourceSize.height: 14
                color: "#C7C7CC"
            }
        }
        Rectangle {
            visible: !row.last
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: "#D1D1D6"
        }
    }

    // A switch row that always shows the model's value: the model may turn
    // other switches off when this one is turned on.
    component Toggle: SwitchDelegate {
        id: toggle
        property bool value: false
        property bool last: false
        signal userToggled(bool on)

        Layout.fillWidth: true
        leftPadding: 16
        checked: value
        Accessible.name: text
        onToggled: {
            userToggled(checked)
            checked = Qt.binding(() => toggle.value)
        }
        Rectangle {
            visible: !toggle.last
            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            height: 1
            color: "#D1D1D6"
        }
    }

    // A centred alert with a bold title and an optional message.
    component Alert: Dialog {
        id: alert
        property string message: ""

        parent: Overlay.overlay
        anchors.centerIn: parent
        width: Math.min(parent ? parent.width - 48 : 312, 360)
        modal: true
        closePolicy: Popup.CloseOnEscape
        topPadding: 0

        header: Label {
            text: alert.title
            wrapMode: Text.Wrap
            horizontalAlignment: Text.AlignHCenter
            font.bold: true
            padding: 24
            bottomPadding: 8
        }
        contentItem: ColumnLayout {
            Label {
                Layout.fillWidth: true
                text: alert.message
                visible: alert.message.length > 0
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignHCenter
                color: "#3C3C43"
            }
        }
    }

    // A full-screen cover with a navigation bar whose back button closes it;
    // the view inside may also ask to be dismissed.
    component Cover: Popup {
        id: cover
        property bool presented: false
        // Made in the screen's own context (the screen's components are
        // bound to it), so created here rather than through a Loader.
        property Component sourceComponent
        property var view: null
        signal dismiss()

        parent: Overlay.overlay
        x: 0
        y: 0
        width: parent ? parent.width : 0
        height: parent ? parent.height : 0
        padding: 0
        modal: true
        closePolicy: Popup.CloseOnEscape
        onPresentedChanged: {
            if (presented) {
                view = sourceComponent.createObject(coverHolder)
                if (view)
                    view.anchors.fill = coverHolder
                open()
            } else {
                if (view)
                    view.destroy()
                view = null
                close()
            }
        }
        onClosed: dismiss()
        background: Rectangle { color: "white" }

        ColumnLayout {
            anchors.fill: parent
            spacing: 0
            ToolBar {
                Layout.fillWidth: true
                Material.background: "white"
                Material.elevation: 0
                ToolButton {
                    objectName: "coverBackButton"
                    icon.source: "qrc:/Quieton/icons/chevron.left.svg"
                    icon.color: "#007AFF"
                    Accessible.name: qsTr("Back")
                    onClicked: cover.close()
                }
            }
            Item {
                id: coverHolder
                Layout.fillWidth: true
                Layout.fillHeight: true
            }
        }
        Connections {
            target: cover.view
            ignoreUnknownSignals: true
            function onDismissRequested() { cover.close() }
        }
    }
}
