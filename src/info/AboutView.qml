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
    // What opens the product's web pages.
    required property UrlOpener urlOpener

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
            onClicked: aboutView.dismissRequested()
        }
    }

    ColumnLayout {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        spacing: 0

        Label {
            objectName: "aboutTitle"
            Layout.fillWidth: true
            Layout.leftMargin: 20
            Layout.rightMargin: 20
            Layout.bottomMargin: 16
            text: qsTr("About")
            font.pixelSize: 34
            font.bold: true
            color: "#1C1C1E"
            Accessible.role: Accessible.Heading
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

    // The two web sheets, each up while its flag is.
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
