import QtQuick
import QtTest
import Quieton

// The guide on a shortened clock: 40 ms stand for a second.
TestCase {
    id: testCase
    name: "UserGuideView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    readonly property int tick: 40

    Component {
        id: guideComponent
        UserGuideForQuietonView { anchors.fill: parent }
    }

    SignalSpy {
        id: dismissSpy
        signalName: "dismissRequested"
    }

    function init() {
        UserDefaultsService.setBool("isReadUserGuide", false)
        log.start()
    }

    function cleanup() {
        log.stop()
    }

    function openGuide() {
        const guide = createTemporaryObject(guideComponent, testCase, { tickInterval: testCase.tick })
        verify(guide)
        return guide
    }

    function guideLines() {
        return log.lines().filter((line) => line.startsWith("## "))
    }

    function test_countsDownStoresAfterTheSixthTickAndKeepsStoring() {
        const guide = openGuide()
        compare(guide.timeRemaining, 5)
        let storedAtZero = null
        let storedAtOne = null
        const watch = (function() {
            if (guide.timeRemaining === 1)
                storedAtOne = settingsFile.boolValue("isReadUserGuide")
            if (guide.timeRemaining === 0 && storedAtZero === null)
                storedAtZero = settingsFile.boolValue("isReadUserGuide")
        })
        guide.timeRemainingChanged.connect(watch)

        tryVerify(() => guideLines().length >= 8, 3000)
        guide.timeRemainingChanged.disconnect(watch)
        // The count reaches 0 on the fifth tick without storing anything yet.
        compare(storedAtOne, false)
        compare(storedAtZero, false)
        compare(guideLines().slice(0, 8), [
            "## Time to User Guide Read: 4",
            "## Time to User Guide Read: 3",
            "## Time to User Guide Read: 2",
            "## Time to User Guide Read: 1",
            "## Time to User Guide Read: 0",
            "## User Guide Read",
            "## User Guide Read",
            "## User Guide Read"
        ])
        verify(settingsFile.boolValue("isReadUserGuide"))
        compare(guide.timeRemaining, 0)

        // Every later tick writes the flag again.
        UserDefaultsService.setBool("isReadUserGuide", false)
        compare(settingsFile.boolValue("isReadUserGuide"), false)
        tryVerify(() => settingsFile.boolValue("isReadUserGuide"), 1000)
    }

    function test_closingEarlyStoresNothingAndTheCountStartsOver() {
        let guide = openGuide()
        // Closed right after the third second.
        let closed = false
        guide.timeRemainingChanged.connect(() => {
            if (guide.timeRemaining === 2 && !closed) {
                closed = true
                guide.destroy()
            }
        })
        tryVerify(() => closed, 2000)
        wait(10 * testCase.tick)
        verify(!settingsFile.boolValue("isReadUserGuide"))
        compare(guideLines(), [
            "## Time to User Guide Read: 4",
            "## Time to User Guide Read: 3",
            "## Time to User Guide Read: 2"
        ])

        guide = openGuide()
        compare(guide.timeRemaining, 5)
        tryVerify(() => guideLines().length >= 4, 1000)
        compare(guideLines()[3], "## Time to User Guide Read: 4")
    }

    function test_backRequestsDismissalAndTheGuideStaysUntilClosed() {
        const guide = openGuide()
        dismissSpy.target = guide
        dismissSpy.clear()
        const back = findChild(guide, "backButton")
        verify(back)
        compare(back.Accessible.name, "Back")
        waitForRendering(guide)
        mouseClick(back)
        compare(dismissSpy.count, 1)
        // Closing is the presenter's business: the guide is still there and counting.
        verify(guide.visible)
        tryVerify(() => guide.timeRemaining < 5, 1000)
    }

    function test_contentAndTheRealClock() {
        const guide = createTemporaryObject(guideComponent, testCase)
        compare(guide.tickInterval, 1000)
        const heading = findChild(guide, "guideHeading")
        compare(heading.text, "User Guide for Quieton")
        verify(heading.font.bold)
        compare(findChild(guide, "paragraph0").text,
                "Our app facilitates anonymous calls by allowing you to add a prefix to the number you dial.")
        compare(findChild(guide, "paragraph1").text,
                "For example, if you dial 123-456-789 and the prefix is #31#, the app will dial #31#123-456-789.")
        verify(findChild(guide, "paragraph4").text.startsWith("Additionally, be aware"))
        verify(findChild(guide, "paragraph3").text.indexOf("it's essential") > 0)
        const icon = findChild(guide, "appIcon")
        tryCompare(icon, "status", Image.Ready)
        // The long text scrolls on a small screen.
        const scroller = findChild(guide, "guideScroller")
        guide.anchors.fill = undefined
        guide.width = 320
        guide.height = 400
        verify(scroller.contentHeight > scroller.height)
        scroller.contentY = scroller.contentHeight - scroller.height
        verify(findChild(guide, "paragraph4").mapToItem(guide, 0, 0).y < guide.height)
    }
}
