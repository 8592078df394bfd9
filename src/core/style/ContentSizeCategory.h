#pragma once

#include <QFont>
#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <array>

class QJSEngine;
class QQmlEngine;

// The user's preferred text size as one of the usual size steps, from
// extra small to the accessibility sizes. On the desktop it comes from the
// application font: its pixel size (the font's points at the screen's
// resolution, so a desktop text-scaling factor counts) over that of a
// 10-point font at 96 dpi gives a scale, and the nearest step's scale wins.
class ContentSizeCategory : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(Category current READ current NOTIFY currentChanged)
    // The application font's size in points, the body text size every
    // screen's type sizes are scaled from.
    Q_PROPERTY(qreal pointSize READ pointSize NOTIFY pointSizeChanged)

public:
    enum Category {
        ExtraSmall,
        Small,
        Medium,
        Large,
        ExtraLarge,
        ExtraExtraLarge,
        ExtraExtraExtraLarge,
        AccessibilityMedium,
        AccessibilityLarge,
        AccessibilityExtraLarge,
        AccessibilityExtraExtraLarge,
        AccessibilityExtraExtraExtraLarge,
        Unspecified,
    };
    Q_ENUM(Category)

    static ContentSizeCategory *create(QQmlEngine *, QJSEngine *);
    explicit ContentSizeCategory(QObject *parent = nullptr);

    Category current() const { return m_current; }
    qreal pointSize() const { return m_pointSize; }

    // The step whose scale (1 is the "large" default) is nearest `scale`.
    Q_INVOKABLE static ContentSizeCategory::Category forTextScale(qreal scale);

    // The contacts screen's search-bar inset and sort-segment font size.
    Q_INVOKABLE static int searchBarInset(ContentSizeCategory::Category category) { return byGroup(category, { 25, 40, 50 }); }
    Q_INVOKABLE static int sortSegmentFontSize(ContentSizeCategory::Category category) { return byGroup(category, { 16, 25, 48 }); }

signals:
    void currentChanged();
    void pointSizeChanged();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    static int byGroup(Category category, std::array<int, 3> sizes);
    void update(const QFont &font);

    Category m_current = Large;
    qreal m_pointSize = 10;
};
