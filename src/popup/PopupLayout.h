#pragma once

#include <QObject>
#include <QPointF>
#include <QProperty>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

#include <algorithm>

// PopupView's geometry: where a popup rests, where it comes from, how a drag
// moves and dismisses it. Coordinates are the window's; "leading" is the left
// edge unless `mirrored`.
class PopupLayout : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int type READ type WRITE setType NOTIFY inputsChanged)
    Q_PROPERTY(int position READ position WRITE setPosition NOTIFY inputsChanged)
    Q_PROPERTY(int appearFrom READ appearFrom WRITE setAppearFrom NOTIFY inputsChanged)
    Q_PROPERTY(qreal containerWidth READ containerWidth WRITE setContainerWidth NOTIFY inputsChanged)
    Q_PROPERTY(qreal containerHeight READ containerHeight WRITE setContainerHeight NOTIFY inputsChanged)
    Q_PROPERTY(qreal contentWidth READ contentWidth WRITE setContentWidth NOTIFY inputsChanged)
    Q_PROPERTY(qreal contentHeight READ contentHeight WRITE setContentHeight NOTIFY inputsChanged)
    Q_PROPERTY(qreal margin READ margin WRITE setMargin NOTIFY inputsChanged)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY inputsChanged)
    Q_PROPERTY(qreal popupWidth READ popupWidth NOTIFY inputsChanged)
    Q_PROPERTY(qreal popupHeight READ popupHeight NOTIFY inputsChanged)
    Q_PROPERTY(qreal restingX READ restingX NOTIFY inputsChanged)
    Q_PROPERTY(qreal restingY READ restingY NOTIFY inputsChanged)
    Q_PROPERTY(qreal entryOffsetX READ entryOffsetX NOTIFY inputsChanged)
    Q_PROPERTY(qreal entryOffsetY READ entryOffsetY NOTIFY inputsChanged)

public:
    enum Kind {
        Floating,   // a card over a dimmed window
        Toast,      // a strip across the window; the rest stays usable
        FullScreen, // covers the whole window
    };
    Q_ENUM(Kind)

    enum Position {
        TopLeading,
        Top,
        TopTrailing,
        Leading,
        Center,
        Trailing,
        BottomLeading,
        Bottom,
        BottomTrailing,
    };
    Q_ENUM(Position)

    // The edge a popup slides in from, and goes back to when dragged away.
    enum AppearFrom {
        FromTop,
        FromBottom,
        FromLeading,
        FromTrailing,
    };
    Q_ENUM(AppearFrom)

    // Why a popup went away.
    enum DismissSource {
        Binding,    // its owner lowered the flag
        TapInside,
        TapOutside,
        Drag,
        Autohide,
        Escape,     // the Escape or the Back key
    };
    Q_ENUM(DismissSource)

    using QObject::QObject;

    // Floating popups keep their content's size within the margins, toasts
    // span the width, full-screen popups fill the container.
    static QSizeF popupSize(Kind kind, QSizeF container, QSizeF content, qreal margin);
    static QPointF restingPosition(Position position, QSizeF container, QSizeF size, qreal margin, bool mirrored);
    // How far a popup moves from `resting` to be just out of sight beyond `from`.
    static QPointF entryOffset(AppearFrom from, QSizeF container, QSizeF size, QPointF resting, bool mirrored);
    // The popup follows a finger only towards its edge.
    static QPointF dragOffset(AppearFrom from, QPointF translation, bool mirrored);
    // Past a third of the popup's own size towards its edge.
    static bool dragDismisses(AppearFrom from, QPointF translation, QSizeF size, bool mirrored);

    int type() const { return m_type; }
    void setType(int type) { m_type = std::clamp(type, 0, int(FullScreen)); }
    int position() const { return m_position; }
    void setPosition(int position) { m_position = std::clamp(position, 0, int(BottomTrailing)); }
    int appearFrom() const { return m_appearFrom; }
    void setAppearFrom(int from) { m_appearFrom = std::clamp(from, 0, int(FromTrailing)); }
    qreal containerWidth() const { return m_containerSize.value().width(); }
    void setContainerWidth(qreal width) { m_containerSize = QSizeF(width, containerHeight()); }
    qreal containerHeight() const { return m_containerSize.value().height(); }
    void setContainerHeight(qreal height) { m_containerSize = QSizeF(containerWidth(), height); }
    qreal contentWidth() const { return m_contentSize.value().width(); }
    void setContentWidth(qreal width) { m_contentSize = QSizeF(width, contentHeight()); }
    qreal contentHeight() const { return m_contentSize.value().height(); }
    void setContentHeight(qreal height) { m_contentSize = QSizeF(contentWidth(), height); }
    qreal margin() const { return m_margin; }
    void setMargin(qreal margin) { m_margin = std::max<qreal>(0, margin); }
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored) { m_mirrored = mirrored; }

    QSizeF popupSize() const;
    qreal popupWidth() const { return popupSize().width(); }
    qreal popupHeight() const { return popupSize().height(); }
    QPointF restingPosition() const;
    qreal restingX() const { return restingPosition().x(); }
    qreal restingY() const { return restingPosition().y(); }
    QPointF entryOffset() const;
    qreal entryOffsetX() const { return entryOffset().x(); }
    qreal entryOffsetY() const { return entryOffset().y(); }
    Q_INVOKABLE qreal dragOffsetX(qreal dx, qreal dy) const { return dragOffset(from(), QPointF(dx, dy), m_mirrored).x(); }
    Q_INVOKABLE qreal dragOffsetY(qreal dx, qreal dy) const { return dragOffset(from(), QPointF(dx, dy), m_mirrored).y(); }
    Q_INVOKABLE bool dragDismisses(qreal dx, qreal dy) const
    {
        return dragDismisses(from(), QPointF(dx, dy), popupSize(), m_mirrored);
    }

signals:
    void inputsChanged();

private:
    static QPointF towardsEdge(AppearFrom from, bool mirrored);
    Kind kind() const { return Kind(m_type.value()); }
    AppearFrom from() const { return AppearFrom(m_appearFrom.value()); }

    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(PopupLayout, int, m_type, Floating, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(PopupLayout, int, m_position, Center, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(PopupLayout, int, m_appearFrom, FromBottom, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(PopupLayout, QSizeF, m_containerSize, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(PopupLayout, QSizeF, m_contentSize, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(PopupLayout, qreal, m_margin, 16, &PopupLayout::inputsChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(PopupLayout, bool, m_mirrored, false, &PopupLayout::inputsChanged)
};
