// Where popups rest, where they come from and when a drag lets them go.
#include "PopupLayout.h"

#include <QTest>

using L = PopupLayout;

class PopupLayoutTest : public QObject
{
    Q_OBJECT
private slots:
    void restingPlaces_data()
    {
        QTest::addColumn<int>("position");
        QTest::addColumn<QPointF>("expected");
        // A 100x50 popup in a 400x800 window with a 16-point margin.
        QTest::newRow("topLeading") << int(L::TopLeading) << QPointF(16, 16);
        QTest::newRow("bottomTrailing") << int(L::BottomTrailing) << QPointF(284, 734);
    }
    void restingPlaces()
    {
        QFETCH(int, position);
        QFETCH(QPointF, expected);
        QCOMPARE(L::restingPosition(L::Position(position), { 400, 800 }, { 100, 50 }, 16, false), expected);
        // Right-to-left swaps leading and trailing, never top and bottom.
        const QPointF mirrored = L::restingPosition(L::Position(position), { 400, 800 }, { 100, 50 }, 16, true);
        QCOMPARE(mirrored.y(), expected.y());
        QCOMPARE(mirrored.x(), 400 - 100 - expected.x());
    }

    void sizesOfTheThreeKinds()
    {
        // Content larger than the window is kept inside the margins.
        QCOMPARE(L::popupSize(L::Floating, { 400, 800 }, { 900, 2000 }, 16), QSizeF(368, 768));
        // A window smaller than its margins gives an empty popup, not a negative one.
        QCOMPARE(L::popupSize(L::Floating, { 20, 20 }, { 50, 50 }, 16), QSizeF(0, 0));
    }

    void entryStartsJustOutOfSight()
    {
        const QSizeF window(400, 800), size(100, 50);
        const QPointF rest(150, 375);
        QCOMPARE(L::entryOffset(L::FromTop, window, size, rest, false), QPointF(0, -425));
        QCOMPARE(L::entryOffset(L::FromBottom, window, size, rest, false), QPointF(0, 425));
        // Right-to-left: the leading edge is on the right.
        QCOMPARE(L::entryOffset(L::FromLeading, window, size, rest, true), QPointF(250, 0));
        // From a corner the distance is to the chosen edge.
        QCOMPARE(L::entryOffset(L::FromBottom, window, size, QPointF(16, 734), false), QPointF(0, 66));
    }

    void dismissedPastAThirdOfItsOwnSize_data()
    {
        QTest::addColumn<int>("from");
        QTest::addColumn<QPointF>("translation");
        QTest::addColumn<bool>("dismisses");
        // The popup is 90 wide and 150 tall: thresholds 30 and 50.
        QTest::newRow("bottom exactly a third") << int(L::FromBottom) << QPointF(0, 50) << false;
        QTest::newRow("bottom past") << int(L::FromBottom) << QPointF(0, 51) << true;
        // Sideways entries measure the width, not the height.
        QTest::newRow("leading past width third") << int(L::FromLeading) << QPointF(-31, 0) << true;
    }
    void dismissedPastAThirdOfItsOwnSize()
    {
        QFETCH(int, from);
        QFETCH(QPointF, translation);
        QFETCH(bool, dismisses);
        QCOMPARE(L::dragDismisses(L::AppearFrom(from), translation, { 90, 150 }, false), dismisses);
        // An empty popup is never dragged away.
        QVERIFY(!L::dragDismisses(L::AppearFrom(from), translation * 10, { 0, 0 }, false));
    }
};

QTEST_GUILESS_MAIN(PopupLayoutTest)
#include "tst_popuplayout.moc"
