#include "ContentSizeCategory.h"

#include <QEvent>
#include <QFontInfo>
#include <QGuiApplication>
#include <QJSEngine>

#include <cmath>
#include <iterator>

namespace {

// The scale of each step against "large": body text of 14, 15, 16, 17, 19,
// 21, 23, then 28, 33, 40, 47 and 53 points against 17.
constexpr qreal stepScales[] = { 14 / 17.0, 15 / 17.0, 16 / 17.0, 1.0,       19 / 17.0, 21 / 17.0,
                                 23 / 17.0, 28 / 17.0, 33 / 17.0, 40 / 17.0, 47 / 17.0, 53 / 17.0 };

// A 10-point font at 96 dpi.
constexpr qreal referencePixelSize = 10 * 96 / 72.0;

} // namespace

ContentSizeCategory *ContentSizeCategory::create(QQmlEngine *, QJSEngine *)
{
    static ContentSizeCategory *const instance = new ContentSizeCategory;
    QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
    return instance;
}

ContentSizeCategory::ContentSizeCategory(QObject *parent) : QObject(parent)
{
    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance())) {
        update(QGuiApplication::font());
        QCoreApplication::instance()->installEventFilter(this);
    }
}

bool ContentSizeCategory::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == QCoreApplication::instance() && event->type() == QEvent::ApplicationFontChange)
        update(QGuiApplication::font());
    return QObject::eventFilter(watched, event);
}

void ContentSizeCategory::update(const QFont &font)
{
    const qreal pointSize = QFontInfo(font).pointSizeF();
    if (pointSize > 0 && !qFuzzyCompare(pointSize, m_pointSize)) {
        m_pointSize = pointSize;
        emit pointSizeChanged();
    }
    const Category category = forTextScale(QFontInfo(font).pixelSize() / referencePixelSize);
    if (category != m_current) {
        m_current = category;
        emit currentChanged();
    }
}

ContentSizeCategory::Category ContentSizeCategory::forTextScale(qreal scale)
{
    if (!std::isfinite(scale) || scale <= 0)
        return Unspecified;
    int nearest = 0;
    for (int i = 1; i < int(std::size(stepScales)); ++i) {
        if (std::abs(stepScales[i] - scale) < std::abs(stepScales[nearest] - scale))
            nearest = i;
    }
    return Category(nearest);
}

// `sizes` for the steps up to AccessibilityMedium, the next two and the last two; 1 when unspecified.
int ContentSizeCategory::byGroup(Category category, std::array<int, 3> sizes)
{
    if (category >= ExtraSmall && category <= AccessibilityMedium)
        return sizes[0];
    if (category == AccessibilityLarge || category == AccessibilityExtraLarge)
        return sizes[1];
    if (category == AccessibilityExtraExtraLarge || category == AccessibilityExtraExtraExtraLarge)
        return sizes[2];
    return 1;
}
