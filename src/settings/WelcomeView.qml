pragma ComponentBehavior: Bound
import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Settings

// Onboarding until "Get Started". The page shown and the model's
// `selectedPage` are one index, bound both ways.
Page {
    id: welcomeView
    objectName: "welcomeView"

    required property WelcomeViewModel vm
    // The window shows the main screen once it is up.
    property bool showMainView: false

    readonly property var pages: [
        {
            picture: "qrc:/Quieton/Settings/images/onboarding-welcome.svg",
            title: qsTr("Welcome"),
            lead: qsTr("Make calls without revealing your number."),
            texts: [qsTr("With Quieton, you can easily dial any number privately using a custom prefix of your choice."),
                    qsTr("Your identity stays hidden, giving you control over your privacy.")]
        },
        {
            picture: "qrc:/Quieton/Settings/images/onboarding-contacts.svg",
            title: qsTr("Contacts Integration"),
            lead: qsTr("Seamlessly make private calls from your contacts."),
            texts: [qsTr("Quieton allows you to select numbers and decide whether to call anonymously."),
                    qsTr("No more toggling settings \u2013 it's all at your fingertips.")]
        },
        {
            picture: "qrc:/Quieton/Settings/images/onboarding-history.svg",
            title: qsTr("Call history management"),
            lead: qsTr("Take charge of your call history."),
            texts: [qsTr("Quieton manages your calls, letting you choose which Calls are saved in-app."),
                    qsTr("You're in control of your call records, making sure your privacy preferences are met.")]
        }
    ]
    readonly property bool onLastPage: welcomeView.vm.selectedPage === welcomeView.pages.length - 1
    // Right-to-left, the pages run the other way.
    readonly property real forward: welcomeView.LayoutMirroring.enabled ? -1 : 1

    Accessible.role: Accessible.Pane
    Accessible.name: welcomeView.pages[welcomeView.vm.selectedPage].title
    background: null
    focus: true
    Keys.onLeftPressed: welcomeView.vm.selectedPage = welcomeView.vm.selectedPage - welcomeView.forward
    Keys.onRightPressed: welcomeView.vm.selectedPage = welcomeView.vm.selectedPage + welcomeView.forward

    function getStarted() {
        welcomeView.vm.completeFirstLaunch()
        welcomeView.showMainView = true
    }

    ColumnLayout {
        anchors.fill: parent
        anchors.bottomMargin: Theme.spacingLarge
        spacing: Theme.spacing

        SwipeView {
            id: pager
            objectName: "pager"
            Layout.fillWidth: true
            Layout.fillHeight: true
            clip: true
            currentIndex: welcomeView.vm.selectedPage
            onCurrentIndexChanged: welcomeView.vm.selectedPage = pager.currentIndex

            readonly property ListView list: pager.contentItem as ListView
            // At rest on the page shown: no finger, flick or page change moving it.
            readonly property bool settled: {
                const list = pager.list
                const shown = list ? list.currentItem : null
                return list !== null && shown !== null && !list.moving && Math.abs(list.contentX - shown.x) < 0.5
            }

            // A page change by "Next", the keys or the indicator moves the
            // pages from rest to rest in half a second, without overshoot.
            Binding { target: pager.list; property: "highlightMoveDuration"; value: 500 }
            Binding { target: pager.list; property: "highlightMoveVelocity"; value: -1 }

            Repeater {
                model: welcomeView.pages
                delegate: OnboardingPage {
                    required property var modelData
                    objectName: "page" + index
                    page: modelData
                    last: index === welcomeView.pages.length - 1
                    // Only the page shown, and its neighbours while the pages
                    // move, are drawn and told to a screen reader.
                    visible: SwipeView.isCurrentItem || !pager.settled
                }
            }
        }

        PageIndicator {
            id: indicator
            objectName: "pageIndicator"
            Layout.alignment: Qt.AlignHCenter
            count: welcomeView.pages.length
            currentIndex: welcomeView.vm.selectedPage
            interactive: true
            onCurrentIndexChanged: welcomeView.vm.selectedPage = indicator.currentIndex
            Accessible.role: Accessible.Indicator
            Accessible.name: qsTr("Page %1 of %2").arg(welcomeView.vm.selectedPage + 1).arg(welcomeView.pages.length)
        }

        Button {
            id: pageButton
            objectName: welcomeView.onLastPage ? "getStartedButton" : "nextButton" + welcomeView.vm.selectedPage
            Layout.fillWidth: true
            Layout.maximumWidth: 480
            Layout.alignment: Qt.AlignHCenter
            Layout.leftMargin: Theme.spacingHuge
            Layout.rightMargin: Theme.spacingHuge
            text: welcomeView.onLastPage ? qsTr("Get Started") : qsTr("Next")
            highlighted: true
            font.bold: true
            font.pointSize: Theme.headlineSize
            font.capitalization: Font.MixedCase
            Accessible.onPressAction: pageButton.clicked()
            onClicked: welcomeView.onLastPage ? welcomeView.getStarted() : welcomeView.vm.next()
        }
    }
}
