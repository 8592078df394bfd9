import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Settings

// How prefixes work. Left open through its countdown, it counts as read.
Page {
    id: guideView
    objectName: "userGuideView"

    required property UserGuideForQuietonViewModel vm
    property int timeRemaining: vm.secondsToRead
    // One second; shorter only in tests.
    property int tickInterval: 1000

    // Whoever presents the guide closes it.
    signal dismissRequested()

    title: qsTr("User Guide for Quieton")
    Accessible.role: Accessible.Pane
    Accessible.name: guideView.title
    background: null

    Timer {
        id: timer
        interval: guideView.tickInterval
        repeat: true
        running: true
        onTriggered: guideView.timeRemaining = guideView.vm.tick(guideView.timeRemaining)
    }

    Keys.onEscapePressed: guideView.dismissRequested()
    Keys.onBackPressed: guideView.dismissRequested()
    Component.onCompleted: guideView.forceActiveFocus()

    ScrollView {
        id: scroller
        objectName: "guideScroller"
        anchors.fill: parent
        contentWidth: scroller.availableWidth
        // Never a stop for the keyboard or a screen reader.
        ScrollBar.vertical.focusPolicy: Qt.NoFocus
        ScrollBar.horizontal.policy: ScrollBar.AlwaysOff

        ColumnLayout {
            id: column
            x: Theme.spacingHuge
            width: scroller.availableWidth - 2 * Theme.spacingHuge
            spacing: Theme.spacingLarge

            ToolButton {
                objectName: "backButton"
                Layout.topMargin: Theme.spacingSmall
                Layout.leftMargin: -Theme.spacingSmall
                icon.source: "qrc:/Quieton/icons/arrow.backward.circle.svg"
                icon.color: Theme.link
                icon.width: Theme.iconSize
                icon.height: Theme.iconSize
                display: AbstractButton.IconOnly
                Accessible.name: qsTr("Back")
                Accessible.onPressAction: guideView.dismissRequested()
                onClicked: guideView.dismissRequested()
            }

            Label {
                objectName: "guideHeading"
                Layout.fillWidth: true
                text: guideView.title
                font.bold: true
                font.pointSize: Theme.headlineSize
                wrapMode: Text.Wrap
                Accessible.role: Accessible.Heading
                Accessible.name: text
            }

            RowLayout {
                Layout.fillWidth: true
                spacing: Theme.spacing
                Image {
                    objectName: "appIcon"
                    Layout.preferredWidth: Theme.iconSize * 1.5
                    Layout.preferredHeight: Theme.iconSize * 1.5
                    source: "qrc:/Quieton/icons/IconApp.svg"
                    sourceSize.width: Theme.iconSize * 1.5
                    sourceSize.height: Theme.iconSize * 1.5
                    fillMode: Image.PreserveAspectFit
                    Accessible.ignored: true
                }
                Label {
                    Layout.fillWidth: true
                    text: "Quieton"
                    font.pointSize: Theme.titleSize
                    font.weight: Font.DemiBold
                    // One word: wrapping it made the label tall while the row was
                    // still narrow, and the icon stayed centred on that height.
                    elide: Text.ElideRight
                }
            }

            Repeater {
                model: [
                    qsTr("Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial."),
                    qsTr("For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789."),
                    qsTr("However, the effectiveness of this feature depends on your cellular service provider. You may need to inquire with them to determine which prefix you should use to make a private call."),
                    qsTr("You have the option to manually enter this prefix or select from a list provided by us. Please note that the prefix provided by us may not work universally and could vary among different mobile providers. Therefore, it's essential to verify the correct prefix with your mobile provider for private dialing."),
                    qsTr("Additionally, be aware that there may be additional costs associated with this feature. Always verify with your cellular carrier for accurate information.")
                ]
                delegate: Label {
                    id: paragraph
                    required property string modelData
                    required property int index
                    objectName: "paragraph" + paragraph.index
                    Layout.fillWidth: true
                    text: paragraph.modelData
                    font.pointSize: Theme.bodySize
                    wrapMode: Text.Wrap
                    lineHeight: 1.15
                    color: Theme.secondaryText
                }
            }
            Item {
                implicitHeight: Theme.spacingHuge
                Accessible.ignored: true
            }
        }
    }
}
