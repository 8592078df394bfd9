pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core

// One page of the onboarding; the last one adds the cost note.
ScrollView {
    id: onboardingPage
    required property int index
    required property var page
    property bool last: false

    contentWidth: onboardingPage.availableWidth
    ScrollBar.vertical.focusPolicy: Qt.NoFocus
    ScrollBar.horizontal.policy: ScrollBar.AlwaysOff
    Accessible.role: Accessible.Pane
    Accessible.name: onboardingPage.page.title

    ColumnLayout {
        x: Theme.spacingHuge
        width: onboardingPage.availableWidth - 2 * Theme.spacingHuge
        spacing: Theme.spacing

        Image {
            Layout.alignment: Qt.AlignHCenter
            Layout.topMargin: Theme.spacingHuge
            Layout.bottomMargin: Theme.spacingSmall
            Layout.preferredWidth: Math.min(onboardingPage.availableWidth - 2 * Theme.spacingHuge, 340)
            Layout.preferredHeight: Math.min(Layout.preferredWidth * 0.85, onboardingPage.height * 0.4)
            source: onboardingPage.page.picture
            sourceSize.width: Math.ceil(340 * Screen.devicePixelRatio)
            // The first picture comes with the first frame, the others off
            // the way of start-up.
            asynchronous: onboardingPage.index !== 0
            fillMode: Image.PreserveAspectFit
            Accessible.ignored: true
        }
        Label {
            id: title
            objectName: "title" + onboardingPage.index
            Layout.fillWidth: true
            text: onboardingPage.page.title
            // Lines break between words only: at the largest text sizes the
            // title gets smaller until its longest word fits the width.
            font.pointSize: Math.min(Theme.titleSize,
                                     Theme.titleSize * title.width / Math.max(1, longestWord.advanceWidth))
            font.bold: true
            TextMetrics {
                id: longestWord
                font.pointSize: Theme.titleSize
                font.bold: true
                text: title.text.split(" ").reduce((a, b) => b.length > a.length ? b : a, "")
            }
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }
        Label {
            objectName: "lead" + onboardingPage.index
            Layout.fillWidth: true
            text: onboardingPage.page.lead
            font.pointSize: Theme.headlineSize
            font.weight: Font.DemiBold
            color: Theme.accent
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
        Repeater {
            model: onboardingPage.page.texts
            delegate: Label {
                id: pageText
                required property string modelData
                required property int index
                objectName: "text" + onboardingPage.index + "_" + pageText.index
                Layout.fillWidth: true
                text: pageText.modelData
                font.pointSize: Theme.bodySize
                color: Theme.secondaryText
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.Wrap
            }
        }
        Label {
            objectName: "costNote"
            visible: onboardingPage.last
            Layout.fillWidth: true
            Layout.topMargin: Theme.spacing
            Layout.bottomMargin: Theme.spacing
            text: qsTr("Additional costs may apply, Please verify with your cellular carrier.")
            font.pointSize: Theme.footnoteSize
            color: Theme.tertiaryText
            horizontalAlignment: Text.AlignHCenter
            wrapMode: Text.Wrap
        }
    }
}
