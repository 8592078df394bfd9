pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQml.Models
import Quieton.Core
import Quieton.Info

// Feedback: three pages of the product's web site and sharing the app.
// Created without arguments; its back control asks the presenter to close it.
Page {
    id: sendFeedBackView
    objectName: "sendFeedBackView"

    signal dismissRequested()

    required property SendFeedBackViewModel vm
    readonly property UserDefaultsService defaultsService: vm.defaultsService
    readonly property Service service: vm.service
    // Kept for a vote button and a rating alert this screen does not have.
    property bool isClickedVoteButton: false
    property bool showingChooseRateAlert: false
    property bool isLeaveAFeedBackSheetPresented: false
    property bool isReportAProblemSheetPresented: false
    property bool isSuggestAFeaturePresented: false

    // Right-to-left languages read the screen mirrored.
    LayoutMirroring.enabled: Qt.application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    background: Rectangle { color: "#F2F2F7" }

    header: Item {
        implicitHeight: 56
        SheetBackButton {
            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            onClicked: sendFeedBackView.dismissRequested()
        }
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 0

        Label {
            objectName: "feedbackText"
            Layout.fillWidth: true
            Layout.leftMargin: 20
            Layout.rightMargin: 20
            Layout.topMargin: 8
            Layout.bottomMargin: 24
            text: qsTr("Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.")
            wrapMode: Text.Wrap
            font.pixelSize: 17
            color: "#3A3A3C"
        }

        Rectangle {
            Layout.fillWidth: true
            Layout.leftMargin: 16
            Layout.rightMargin: 16
            Layout.preferredHeight: rows.implicitHeight
            radius: 10
            color: "white"
            clip: true

            ColumnLayout {
                id: rows
                anchors.fill: parent
                spacing: 0

                PageLinkRow {
                    objectName: "leaveAFeedbackRow"
                    caption: qsTr("Leave a Feedback")
                    onClicked: sendFeedBackView.isLeaveAFeedBackSheetPresented = !sendFeedBackView.isLeaveAFeedBackSheetPresented
                }
                PageLinkRow {
                    objectName: "suggestAFeatureRow"
                    caption: qsTr("Suggest a Feature")
                    onClicked: sendFeedBackView.isSuggestAFeaturePresented = !sendFeedBackView.isSuggestAFeaturePresented
                }
                PageLinkRow {
                    objectName: "reportAProblemRow"
                    caption: qsTr("Report a Problem")
                    onClicked: sendFeedBackView.isReportAProblemSheetPresented = !sendFeedBackView.isReportAProblemSheetPresented
                }
                PageLinkRow {
                    objectName: "shareWithFriendRow"
                    divided: false
                    caption: qsTr("Share with Friend")
                    onClicked: sendFeedBackView.vm.service.shareApp()
                }
            }
        }
    }

    // The three web sheets, each up while its flag is.
    Instantiator {
        active: sendFeedBackView.isLeaveAFeedBackSheetPresented
        delegate: SafariWebView {
            page: "leaveAFeedBack"
            opener: sendFeedBackView.vm.urlOpener
            onDismissed: sendFeedBackView.isLeaveAFeedBackSheetPresented = false
        }
    }
    Instantiator {
        active: sendFeedBackView.isSuggestAFeaturePresented
        delegate: SafariWebView {
            page: "suggestAFeature"
            opener: sendFeedBackView.vm.urlOpener
            onDismissed: sendFeedBackView.isSuggestAFeaturePresented = false
        }
    }
    Instantiator {
        active: sendFeedBackView.isReportAProblemSheetPresented
        delegate: SafariWebView {
            page: "reportAProblem"
            opener: sendFeedBackView.vm.urlOpener
            onDismissed: sendFeedBackView.isReportAProblemSheetPresented = false
        }
    }
}
