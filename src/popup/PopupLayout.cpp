#include "PopupLayout.h"

#include <algorithm>

QSizeF PopupLayout::popupSize(Kind kind, QSizeF container, QSizeF content, qreal margin)
{
    const qreal roomW = std::max<qreal>(0, container.width() - 2 * margin);
    const qreal roomH = std::max<qreal>(0, container.height() - 2 * margin);
    if (kind == FullScreen)
        return container;
    return { kind == Toast ? roomW : std::clamp<qreal>(content.width(), 0, roomW),
             std::clamp<qreal>(content.height(), 0, roomH) };
}

QPointF PopupLayout::restingPosition(Position position, QSizeF container, QSizeF size, qreal margin, bool mirrored)
{
    // Positions run in rows of three: leading, middle, trailing.
    const int col = mirrored ? 2 - int(position) % 3 : int(position) % 3;
    const qreal xs[] = { margin, (container.width() - size.width()) / 2, container.width() - size.width() - margin };
    const qreal ys[] = { margin, (container.height() - size.height()) / 2, container.height() - size.height() - margin };
    return { xs[col], ys[int(position) / 3] };
}

QPointF PopupLayout::towardsEdge(AppearFrom from, bool mirrored)
{
    switch (from) {
    case FromTop:
        return { 0, -1 };
    case FromBottom:
        return { 0, 1 };
    case FromLeading:
        return { mirrored ? 1.0 : -1.0, 0 };
    case FromTrailing:
        return { mirrored ? -1.0 : 1.0, 0 };
    }
    return { 0, 1 };
}

QPointF PopupLayout::entryOffset(AppearFrom from, QSizeF container, QSizeF size, QPointF resting, bool mirrored)
{
    const QPointF edge = towardsEdge(from, mirrored);
    if (edge.x() < 0)
        return { -(resting.x() + size.width()), 0 };
    if (edge.x() > 0)
        return { container.width() - resting.x(), 0 };
    if (edge.y() < 0)
        return { 0, -(resting.y() + size.height()) };
    return { 0, container.height() - resting.y() };
}

QPointF PopupLayout::dragOffset(AppearFrom from, QPointF translation, bool mirrored)
{
    const QPointF edge = towardsEdge(from, mirrored);
    const qreal along = std::max<qreal>(0, QPointF::dotProduct(translation, edge));
    return edge * along;
}

bool PopupLayout::dragDismisses(AppearFrom from, QPointF translation, QSizeF size, bool mirrored)
{
    const QPointF edge = towardsEdge(from, mirrored);
    const qreal along = QPointF::dotProduct(translation, edge);
    const qreal extent = edge.x() != 0 ? size.width() : size.height();
    return extent > 0 && along > extent / 3;
}

QSizeF PopupLayout::popupSize() const
{
    return popupSize(kind(), m_containerSize, m_contentSize, m_margin);
}

QPointF PopupLayout::restingPosition() const
{
    if (kind() == FullScreen)
        return { 0, 0 };
    return restingPosition(Position(m_position.value()), m_containerSize, popupSize(), m_margin, m_mirrored);
}

QPointF PopupLayout::entryOffset() const
{
    return entryOffset(from(), m_containerSize, popupSize(), restingPosition(), m_mirrored);
}
