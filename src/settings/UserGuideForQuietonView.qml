import QtQuick
import QtQuick.Controls
import QtQuick.Controls.impl
import QtQuick.Layouts
import Quieton.Core
import Quieton.Info
import Quieton.Popup
import Quieton.Settings

// How prefixes work, shown as a full-screen cover. Once it has stayed open
// through its countdown it counts as read.
Page {
    id: guideView
    objectName: "userGuideView"

    required property UserGuideForQuietonViewModel vm
    property int timeRemaining: vm.secondsToRead
    // One second; shorter only in tests.
    property int tickInterval: 1000

    // The back control; whoever presents the guide closes it.
    signal dismissRequested()

    background: Rectangle { color: "white" }

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

    Flickable {
        id: scroller
        objectName: "guideScroller"
        anchors.fill: parent
        contentWidth: width
        contentHeight: column.implicitHeight + 48
        boundsBehavior: Flickable.StopAtBounds
        ScrollBar.vertical: ScrollBar { }

        ColumnLayout {
            id: column
            x: 24
            y: 16
            width: scroller.width - 48
            spacing: 16

            AbstractButton {
                id: backButton
                objectName: "backButton"
                Layout.preferredWidth: 44
                Layout.preferredHeight: 44
                Layout.leftMargin: -6
                Accessible.role: Accessible.Button
                Accessible.name: qsTr("Back")
                background: null
                contentItem: IconImage {
                    source: "qrc:/Quieton/icons/arrow.backward.circle.svg"
                    sourceSize.width: 32
                    sourceSize.height: 32
                    fillMode: Image.Pad
                    color: backButton.pressed ? "#7FA8F0" : "#0A63E0"
                }
                onClicked: guideView.dismissRequested()
            }

            Label {
                objectName: "guideHeading"
                Layout.fillWidth: true
                text: qsTr("User Guide for Quieton")
                font.bold: true
                font.pixelSize: 22
                wrapMode: Text.Wrap
                color: "#1C1C1E"
                Accessible.role: Accessible.Heading
            }

            RowLayout {
                Layout.topMargin: 4
                spacing: 14
                Image {
                    objectName: "appIcon"
                    source: "qrc:/Quieton/icons/IconApp.svg"
                    sourceSize.width: 64
                    sourceSize.height: 64
                    Layout.preferredWidth: 64
                    Layout.preferredHeight: 64
                    Accessible.ignored: true
                }
                Label {
                    text: "Quieton"
                    font.pixelSize: 20
                    font.weight: Font.DemiBold
                    color: "#1C1C1E"
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
                    required property string modelData
                    required property int index
                    objectName: "paragraph" + index
                    Layout.fillWidth: true
                    text: modelData
                    wrapMode: Text.Wrap
                    font.pixelSize: 16
                    lineHeight: 1.15
                    color: "#3A3A3C"
                }
            }
        }
    }
}
