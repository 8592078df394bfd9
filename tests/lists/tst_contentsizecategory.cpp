// The text-size steps the contacts screen sizes itself by, from the
// application font.
#include "ContentSizeCategory.h"

#include <QGuiApplication>
#include <QSignalSpy>
#include <QtTest>

class TestContentSizeCategory : public QObject
{
    Q_OBJECT

private slots:
    void scalesMapToTheNearestStep_data()
    {
        QTest::addColumn<qreal>("scale");
        QTest::addColumn<int>("category");
        QTest::newRow("tiny") << 0.3 << int(ContentSizeCategory::ExtraSmall);
        QTest::newRow("default") << 1.0 << int(ContentSizeCategory::Large);
        QTest::newRow("two and a half") << 2.5 << int(ContentSizeCategory::AccessibilityExtraLarge);
        QTest::newRow("huge") << 9.0 << int(ContentSizeCategory::AccessibilityExtraExtraExtraLarge);
        QTest::newRow("no size") << 0.0 << int(ContentSizeCategory::Unspecified);
        QTest::newRow("nonsense") << qQNaN() << int(ContentSizeCategory::Unspecified);
    }
    void scalesMapToTheNearestStep()
    {
        QFETCH(qreal, scale);
        QFETCH(int, category);
        QCOMPARE(int(ContentSizeCategory::forTextScale(scale)), category);
    }

    // A larger application font (the desktop's text scale) moves the step.
    void followsTheApplicationFont()
    {
        QFont font = QGuiApplication::font();
        font.setPixelSize(13);
        QGuiApplication::setFont(font);
        ContentSizeCategory category;
        QCOMPARE(category.current(), ContentSizeCategory::Large);
        QSignalSpy changed(&category, &ContentSizeCategory::currentChanged);
        font.setPixelSize(29);
        QGuiApplication::setFont(font);
        QCOMPARE(changed.count(), 1);
        QCOMPARE(category.current(), ContentSizeCategory::AccessibilityExtraLarge);
    }
};

QTEST_MAIN(TestContentSizeCategory)
#include "tst_contentsizecategory.moc"
