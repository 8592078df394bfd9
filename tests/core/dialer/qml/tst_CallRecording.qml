import QtQuick
import QtTest
import Quieton.Core
import Quieton.Popup
import Quieton.Info
import Quieton.Lists
import Quieton.Settings
import Quieton.App

// A call typed on the dialler of the main screen is recorded only while the
// main screen is there to observe it.
TestCase {
    id: testCase
    name: "CallRecording"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { app: testApp; anchors.fill: parent }
    }

    function test_noRecordOnceTheMainScreenIsGone() {
        defaults.setBool("saveToHistory", true)
        const main = createTemporaryObject(mainViewComponent, testCase)
        const dialer = findChild(main, "dialerView")
        waitForRendering(dialer)
        mouseClick(findChild(dialer, "key1"))
        mouseClick(findChild(dialer, "callButton"))
        const before = phone.storedRows().length
        main.destroy()
        wait(0)
        phone.report("road-2", true, false, false)
        compare(phone.storedRows().length, before)
    }
}
