#include "PopupLayout.h"

#include <algorithm>

namespace {

template<typename E>
int clampedEnum(int value, E last)
{
    return std::clamp(value, 0, int(last));
}

// 0, 1 or 2 for the leading, middle and trailing column of a position;
// likewise for rows.
int column(PopupLayout::Position position) { return int(position) % 3; }
int row(PopupLayout::Position position) { return int(position) / 3; }

} // namespace

PopupLayout::PopupLayout(QObject *parent) : QObject(parent) { }

QSizeF PopupLayout::popupSize(Kind kind, QSizeF container, QSizeF content, qreal margin)
{
    const qreal roomW = std::max<qreal>(0, container.width() - 2 * margin);
    const qreal roomH = std::max<qreal>(0, container.height() - 2 * margin);
    switch (kind) {
    case FullScreen:
        return container;
    case Toast:
        return { roomW, std::clamp<qreal>(content.height(), 0, roomH) };
    case Floating:
        break;
    }
    return { std::clamp<qreal>(content.width(), 0, roomW), std::clamp<qreal>(content.height(), 0, roomH) };
}

QPointF PopupLayout::restingPosition(Position position, QSizeF container, QSizeF size, qreal margin, bool mirrored)
{
    int col = column(position);
    if (mirrored)
        col = 2 - col;
    const qreal xs[] = { margin, (container.width() - size.width()) / 2, container.width() - size.width() - margin };
    const qreal ys[] = { margin, (container.height() - size.height()) / 2, container.height() - size.height() - margin };
    return { xs[col], ys[row(position)] };
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

void PopupLayout::setType(int type)
{
    type = clampedEnum(type, FullScreen);
    if (m_type == type)
        return;
    m_type = type;
    emit inputsChanged();
}

void PopupLayout::setPosition(int position)
{
    position = clampedEnum(position, BottomTrailing);
    if (m_position == position)
        return;
    m_position = position;
    emit inputsChanged();
}

void PopupLayout::setAppearFrom(int from)
{
    from = clampedEnum(from, FromTrailing);
    if (m_appearFrom == from)
        return;
    m_appearFrom = from;
    emit inputsChanged();
}

void PopupLayout::setContainerSize(QSizeF size)
{
    if (m_containerSize == size)
        return;
    m_containerSize = size;
    emit inputsChanged();
}

void PopupLayout::setContentSize(QSizeF size)
{
    if (m_contentSize == size)
        return;
    m_contentSize = size;
    emit inputsChanged();
}

void PopupLayout::setMargin(qreal margin)
{
    margin = std::max<qreal>(0, margin);
    if (qFuzzyCompare(m_margin, margin))
        return;
    m_margin = margin;
    emit inputsChanged();
}

void PopupLayout::setMirrored(bool mirrored)
{
    if (m_mirrored == mirrored)
        return;
    m_mirrored = mirrored;
    emit inputsChanged();
}

QSizeF PopupLayout::popupSize() const
{
    return popupSize(kind(), m_containerSize, m_contentSize, m_margin);
}

QPointF PopupLayout::restingPosition() const
{
    if (kind() == FullScreen)
        return { 0, 0 };
    return restingPosition(Position(m_position), m_containerSize, popupSize(), m_margin, m_mirrored);
}

QPointF PopupLayout::entryOffset() const
{
    return entryOffset(from(), m_containerSize, popupSize(), restingPosition(), m_mirrored);
}

QPointF PopupLayout::dragOffset(QPointF translation) const
{
    return dragOffset(from(), translation, m_mirrored);
}

bool PopupLayout::dragDismisses(QPointF translation) const
{
    return dragDismisses(from(), translation, popupSize(), m_mirrored);
}
