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
    property bool isLeaveAFeedBackSheetPresented: false
    property bool isReportAProblemSheetPresented: false
    property bool isSuggestAFeaturePresented: false

    // Right-to-left languages read the screen mirrored.
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    // Named as the settings row that opens it.
    Accessible.name: qsTranslate("SettingView", "Send Feedback")
    header: ToolBar {
        background: null
        SheetBackButton { onClicked: sendFeedBackView.dismissRequested() }
    }

    Flickable {
        id: scroller
        anchors.fill: parent
        contentWidth: width
        contentHeight: content.height
        clip: true
        boundsBehavior: Flickable.StopAtBounds
        ScrollIndicator.vertical: ScrollIndicator { Accessible.ignored: true }

        ColumnLayout {
            id: content
            width: scroller.width
            spacing: 0

            Label {
                objectName: "feedbackText"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.spacingLarge
                Layout.rightMargin: Theme.spacingLarge
                Layout.topMargin: Theme.spacingSmall
                Layout.bottomMargin: Theme.spacingHuge
                text: qsTr("Your feedback matters! Leave a review, suggest features, or report technical issues to help us improve your experience.")
                wrapMode: Text.Wrap
                font.pointSize: Theme.bodySize
                color: Theme.secondaryText
            }

            Rectangle {
                Layout.fillWidth: true
                Layout.leftMargin: Theme.spacingLarge
                Layout.rightMargin: Theme.spacingLarge
                Layout.preferredHeight: rows.implicitHeight
                radius: Theme.radius
                color: Theme.surface
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
    }

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
