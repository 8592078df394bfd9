#pragma once

#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

// Where a popup rests, where it comes from and how a drag moves and dismisses
// it: the geometry of PopupView, which is a Qt Quick Controls Popup. All coordinates are in the popup's layer,
// which covers the window; "leading" is the left edge unless `mirrored`.
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
    // What follows from them.
    Q_PROPERTY(qreal popupWidth READ popupWidth NOTIFY inputsChanged)
    Q_PROPERTY(qreal popupHeight READ popupHeight NOTIFY inputsChanged)
    Q_PROPERTY(qreal restingX READ restingX NOTIFY inputsChanged)
    Q_PROPERTY(qreal restingY READ restingY NOTIFY inputsChanged)
    Q_PROPERTY(qreal entryOffsetX READ entryOffsetX NOTIFY inputsChanged)
    Q_PROPERTY(qreal entryOffsetY READ entryOffsetY NOTIFY inputsChanged)

public:
    // The three kinds of popup.
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

    explicit PopupLayout(QObject *parent = nullptr);

    // The size a popup of `kind` takes in `container` for content that would
    // like `content`: floating popups keep their content's size within the
    // margins, toasts span the width, full-screen popups fill everything.
    static QSizeF popupSize(Kind kind, QSizeF container, QSizeF content, qreal margin);
    // The top-left corner of a popup of `size` resting at `position`.
    static QPointF restingPosition(Position position, QSizeF container, QSizeF size, qreal margin, bool mirrored);
    // How far a popup resting at `resting` moves to be just out of sight
    // beyond the `from` edge.
    static QPointF entryOffset(AppearFrom from, QSizeF container, QSizeF size, QPointF resting, bool mirrored);
    // The unit vector pointing at the `from` edge.
    static QPointF towardsEdge(AppearFrom from, bool mirrored);
    // Where a finger moved by `translation` puts the popup, relative to its
    // resting place: it follows only towards its edge.
    static QPointF dragOffset(AppearFrom from, QPointF translation, bool mirrored);
    // Whether letting go after `translation` dismisses: past a third of the
    // popup's own size towards its edge.
    static bool dragDismisses(AppearFrom from, QPointF translation, QSizeF size, bool mirrored);

    int type() const { return m_type; }
    void setType(int type);
    int position() const { return m_position; }
    void setPosition(int position);
    int appearFrom() const { return m_appearFrom; }
    void setAppearFrom(int from);
    QSizeF containerSize() const { return m_containerSize; }
    void setContainerSize(QSizeF size);
    qreal containerWidth() const { return m_containerSize.width(); }
    void setContainerWidth(qreal width) { setContainerSize({ width, m_containerSize.height() }); }
    qreal containerHeight() const { return m_containerSize.height(); }
    void setContainerHeight(qreal height) { setContainerSize({ m_containerSize.width(), height }); }
    QSizeF contentSize() const { return m_contentSize; }
    void setContentSize(QSizeF size);
    qreal contentWidth() const { return m_contentSize.width(); }
    void setContentWidth(qreal width) { setContentSize({ width, m_contentSize.height() }); }
    qreal contentHeight() const { return m_contentSize.height(); }
    void setContentHeight(qreal height) { setContentSize({ m_contentSize.width(), height }); }
    qreal margin() const { return m_margin; }
    void setMargin(qreal margin);
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    QSizeF popupSize() const;
    qreal popupWidth() const { return popupSize().width(); }
    qreal popupHeight() const { return popupSize().height(); }
    QPointF restingPosition() const;
    qreal restingX() const { return restingPosition().x(); }
    qreal restingY() const { return restingPosition().y(); }
    QPointF entryOffset() const;
    qreal entryOffsetX() const { return entryOffset().x(); }
    qreal entryOffsetY() const { return entryOffset().y(); }
    QPointF dragOffset(QPointF translation) const;
    bool dragDismisses(QPointF translation) const;
    // The same for QML, a finger's translation given as dx and dy.
    Q_INVOKABLE qreal dragOffsetX(qreal dx, qreal dy) const { return dragOffset(QPointF(dx, dy)).x(); }
    Q_INVOKABLE qreal dragOffsetY(qreal dx, qreal dy) const { return dragOffset(QPointF(dx, dy)).y(); }
    Q_INVOKABLE bool dragDismisses(qreal dx, qreal dy) const { return dragDismisses(QPointF(dx, dy)); }

signals:
    void inputsChanged();

private:
    Kind kind() const { return Kind(m_type); }
    AppearFrom from() const { return AppearFrom(m_appearFrom); }

    int m_type = Floating;
    int m_position = Center;
    int m_appearFrom = FromBottom;
    QSizeF m_containerSize;
    QSizeF m_contentSize;
    qreal m_margin = 16;
    bool m_mirrored = false;
};
