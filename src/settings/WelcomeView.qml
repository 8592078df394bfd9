import QtQuick
import QtQuick.Controls
import QtQuick.Layouts
import Quieton.Core
import Quieton.Info
import Quieton.Popup
import Quieton.Settings

// Onboarding: three pages, swiped or stepped through with "Next", until
// "Get Started" hands over to the main screen for good.
Page {
    id: welcomeView
    objectName: "welcomeView"

    required property WelcomeViewModel vm
    // Raised by "Get Started"; the window shows the main screen from then on.
    property bool showMainView: false

    readonly property color ink: "#1C1C1E"
    readonly property color accent: "#3F45B8"

    background: Rectangle { color: "white" }
    focus: true

    function getStarted() {
        welcomeView.vm.completeFirstLaunch()
        welcomeView.showMainView = true
    }

    // Right-to-left, the pages run the other way.
    readonly property real forward: welcomeView.LayoutMirroring.enabled ? -1 : 1

    Keys.onLeftPressed: welcomeView.vm.selectedPage = welcomeView.vm.selectedPage - welcomeView.forward
    Keys.onRightPressed: welcomeView.vm.selectedPage = welcomeView.vm.selectedPage + welcomeView.forward

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

    // The pages side by side; `position` is the page in view, fractional
    // while a finger or the spring moves them.
    Item {
        id: pager
        objectName: "pager"
        anchors.fill: parent
        anchors.bottomMargin: indicator.height + 24
        clip: true

        property real position: 0
        property real springFrom: 0
        property real springTo: 0
        property real springSeconds: 0
        readonly property bool settled: !spring.running && !swipe.active

        // Moves to `page` the way a spring would.
        function springTo_(page) {
            pager.springFrom = pager.position
            pager.springTo = page
            spring.duration = welcomeView.vm.springDurationMs((page - pager.position) * pager.width)
            pager.springSeconds = 0
            spring.restart()
        }

        onSpringSecondsChanged: {
            if (spring.running)
                pager.position = pager.springFrom
                        + (pager.springTo - pager.springFrom) * welcomeView.vm.springProgress(pager.springSeconds)
        }

        property bool picturesWanted: false
        Timer {
            running: true
            interval: 400
            onTriggered: pager.picturesWanted = true
        }
        onPositionChanged: pager.picturesWanted = true

        NumberAnimation {
            id: spring
            target: pager
            property: "springSeconds"
            from: 0
            to: spring.duration / 1000
            easing.type: Easing.Linear
            onFinished: pager.position = pager.springTo
        }

        Connections {
            target: welcomeView.vm
            function onSelectedPageChanged() { pager.springTo_(welcomeView.vm.selectedPage) }
        }

        Repeater {
            model: welcomeView.pages.length
            delegate: Item {
                id: pageItem
                required property int index
                readonly property var page: welcomeView.pages[pageItem.index]
                readonly property bool last: pageItem.index === welcomeView.pages.length - 1
                objectName: "page" + pageItem.index
                x: (pageItem.index - pager.position) * pager.width * welcomeView.forward
                width: pager.width
                height: pager.height
                visible: Math.abs(pageItem.index - pager.position) < 1
                Accessible.ignored: pageItem.index !== welcomeView.vm.selectedPage

                ColumnLayout {
                    anchors.fill: parent
                    anchors.leftMargin: 28
                    anchors.rightMargin: 28
                    anchors.topMargin: 24
                    spacing: 12

                    Image {
                        Layout.alignment: Qt.AlignHCenter
                        Layout.preferredWidth: Math.min(pageItem.width - 56, 340)
                        Layout.preferredHeight: Math.min(Layout.preferredWidth * 0.85, pageItem.height * 0.42)
                        Layout.bottomMargin: 8
                        // The first picture comes with the first frame, the
                        // others a moment later, off the way of start-up.
                        source: pageItem.index === 0 || pager.picturesWanted ? pageItem.page.picture : ""
                        sourceSize.width: Math.ceil(340 * Screen.devicePixelRatio)
                        asynchronous: pageItem.index !== 0
                        fillMode: Image.PreserveAspectFit
                        Accessible.ignored: true
                    }

                    Label {
                        objectName: "title" + pageItem.index
                        Layout.fillWidth: true
                        text: pageItem.page.title
                        font.pixelSize: 28
                        font.bold: true
                        color: welcomeView.ink
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.Wrap
                        Accessible.role: Accessible.Heading
                    }
                    Label {
                        objectName: "lead" + pageItem.index
                        Layout.fillWidth: true
                        text: pageItem.page.lead
                        font.pixelSize: 18
                        font.weight: Font.DemiBold
                        color: welcomeView.accent
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.Wrap
                    }
                    Repeater {
                        model: pageItem.page.texts
                        delegate: Label {
                            id: pageText
                            required property string modelData
                            required property int index
                            objectName: "text" + pageItem.index + "_" + pageText.index
                            Layout.fillWidth: true
                            text: pageText.modelData
                            font.pixelSize: 16
                            color: "#48484A"
                            horizontalAlignment: Text.AlignHCenter
                            wrapMode: Text.Wrap
                        }
                    }

                    Item { Layout.fillHeight: true }

                    Label {
                        objectName: "costNote"
                        visible: pageItem.last
                        Layout.fillWidth: true
                        text: qsTr("Additional costs may apply, Please verify with your cellular carrier.")
                        font.pixelSize: 13
                        color: "#8E8E93"
                        horizontalAlignment: Text.AlignHCenter
                        wrapMode: Text.Wrap
                    }

                    Button {
                        id: pageButton
                        objectName: pageItem.last ? "getStartedButton" : "nextButton" + pageItem.index
                        Layout.fillWidth: true
                        Layout.preferredHeight: 56
                        Layout.bottomMargin: 4
                        text: pageItem.last ? qsTr("Get Started") : qsTr("Next")
                        font.pixelSize: 17
                        font.bold: true
                        font.capitalization: Font.MixedCase
                        background: Rectangle {
                            radius: height / 2
                            color: pageButton.down ? Qt.darker(welcomeView.accent, 1.25) : welcomeView.accent
                        }
                        contentItem: Label {
                            text: pageButton.text
                            font: pageButton.font
                            color: "white"
                            horizontalAlignment: Text.AlignHCenter
                            verticalAlignment: Text.AlignVCenter
                        }
                        onClicked: pageItem.last ? welcomeView.getStarted() : welcomeView.vm.next()
                    }
                }
            }
        }

        // Swiping: the pages follow the finger and settle on the nearest
        // page, or the next one after a quick flick.
        DragHandler {
            id: swipe
            target: null
            yAxis.enabled: false
            property real startPosition: 0
            onActiveChanged: {
                if (swipe.active) {
                    spring.stop()
                    swipe.startPosition = pager.position
                    return
                }
                const moved = pager.position - swipe.startPosition
                let page = Math.round(pager.position)
                if (Math.abs(moved) > 0.02 && Math.abs(swipe.centroid.velocity.x) > 400)
                    page = moved > 0 ? Math.ceil(pager.position) : Math.floor(pager.position)
                page = Math.max(0, Math.min(welcomeView.pages.length - 1, page))
                if (page === welcomeView.vm.selectedPage)
                    pager.springTo_(page)
                else
                    welcomeView.vm.selectedPage = page
            }
            onTranslationChanged: {
                if (!swipe.active || pager.width <= 0)
                    return
                let p = swipe.startPosition - welcomeView.forward * swipe.translation.x / pager.width
                const lastPage = welcomeView.pages.length - 1
                // Past either end the pages give a little, then stop.
                if (p < 0)
                    p = -Math.min(0.15, -p / 3)
                else if (p > lastPage)
                    p = lastPage + Math.min(0.15, (p - lastPage) / 3)
                pager.position = p
            }
        }
    }

    PageIndicator {
        id: indicator
        objectName: "pageIndicator"
        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: 16
        count: welcomeView.pages.length
        currentIndex: welcomeView.vm.selectedPage
        interactive: true
        onCurrentIndexChanged: welcomeView.vm.selectedPage = indicator.currentIndex
        Accessible.name: qsTr("Page %1 of %2").arg(welcomeView.vm.selectedPage + 1).arg(welcomeView.pages.length)
    }
}
