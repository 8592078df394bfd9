import QtQuick
import QtTest
import Quieton

TestCase {
    id: testCase
    name: "MainView"
    width: 400
    height: 800
    when: windowShown
    visible: true

    Component {
        id: mainViewComponent
        MainView { anchors.fill: parent }
    }

    function test_fourTabsInOrder() {
        const count = UserDefaultsService.integerForKey("appOpenCount")
        const view = createTemporaryObject(mainViewComponent, testCase)
        verify(view)
        compare(UserDefaultsService.integerForKey("appOpenCount"), count + 1)
        const bar = view.footer
        compare(bar.count, 4)
        compare(bar.itemAt(0).text, "Dialer")
        compare(bar.itemAt(1).text, "Contacts")
        compare(bar.itemAt(2).text, "History")
        compare(bar.itemAt(3).text, "Settings")
        compare(bar.currentIndex, 0)
        compare(view.vm.selectedTab, 0)
        compare(view.shouldShowBannerAd, false)
    }

    function test_tabsLoadWhenFirstShown() {
        const view = createTemporaryObject(mainViewComponent, testCase)
        const bar = view.footer
        tryVerify(() => bar.itemAt(3).x > 0)
        mouseClick(bar.itemAt(3))
        tryCompare(view.vm, "selectedTab", 3)
        mouseClick(bar.itemAt(2))
        tryCompare(view.vm, "selectedTab", 2)
    }
}
