pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import QtQml.Models
import Quieton.Core
import Quieton.Info

// About: the two legal pages of the product's web site. Created without
// arguments; its back control asks the presenter to close it.
Page {
    id: aboutView
    objectName: "aboutView"

    signal dismissRequested()

    property bool isShowingWebViewTermsOfUse: false
    property bool isShowingWebViewPrivacy: false
    required property Service service
    required property UrlOpener urlOpener

    // Right-to-left languages read the screen mirrored.
    LayoutMirroring.enabled: Application.layoutDirection === Qt.RightToLeft
    LayoutMirroring.childrenInherit: true
    Accessible.role: Accessible.Dialog
    Accessible.name: qsTr("About")
    header: ToolBar {
        background: null
        SheetBackButton { onClicked: aboutView.dismissRequested() }
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
                objectName: "aboutTitle"
                Layout.fillWidth: true
                Layout.leftMargin: Theme.spacingLarge
                Layout.rightMargin: Theme.spacingLarge
                Layout.bottomMargin: Theme.spacingLarge
                text: qsTr("About")
                font.pointSize: Theme.largeTitleSize
                wrapMode: Text.Wrap
                font.bold: true
                Accessible.role: Accessible.Heading
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
                        objectName: "privacyRow"
                        caption: qsTr("Privacy")
                        onClicked: aboutView.isShowingWebViewPrivacy = true
                    }
                    PageLinkRow {
                        objectName: "termsOfUseRow"
                        divided: false
                        caption: qsTr("Terms Of Use")
                        onClicked: aboutView.isShowingWebViewTermsOfUse = true
                    }
                }
            }
        }
    }

    Instantiator {
        active: aboutView.isShowingWebViewPrivacy
        delegate: SafariWebView {
            page: "privacy"
            opener: aboutView.urlOpener
            onDismissed: aboutView.isShowingWebViewPrivacy = false
        }
    }
    Instantiator {
        active: aboutView.isShowingWebViewTermsOfUse
        delegate: SafariWebView {
            page: "termsOfUs"
            opener: aboutView.urlOpener
            onDismissed: aboutView.isShowingWebViewTermsOfUse = false
        }
    }
}
