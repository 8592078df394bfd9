#pragma once

#include <QObject>
#include <QPointF>
#include <QSizeF>
#include <QtQml/qqmlregistration.h>

// Where a popup rests, where it comes from and how a drag moves and dismisses
// it. PopupView draws; this decides. All coordinates are in the popup's layer,
// which covers the window; "leading" is the left edge unless `mirrored`.
class PopupLayout : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    Q_PROPERTY(int type READ type WRITE setType NOTIFY inputsChanged)
    Q_PROPERTY(int position READ position WRITE setPosition NOTIFY inputsChanged)
    Q_PROPERTY(int appearFrom READ appearFrom WRITE setAppearFrom NOTIFY inputsChanged)
    Q_PROPERTY(QSizeF containerSize READ containerSize WRITE setContainerSize NOTIFY inputsChanged)
    Q_PROPERTY(QSizeF contentSize READ contentSize WRITE setContentSize NOTIFY inputsChanged)
    Q_PROPERTY(qreal margin READ margin WRITE setMargin NOTIFY inputsChanged)
    Q_PROPERTY(bool mirrored READ mirrored WRITE setMirrored NOTIFY inputsChanged)
    Q_PROPERTY(QSizeF popupSize READ popupSize NOTIFY inputsChanged)
    Q_PROPERTY(QPointF restingPosition READ restingPosition NOTIFY inputsChanged)
    Q_PROPERTY(QPointF entryOffset READ entryOffset NOTIFY inputsChanged)

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
    QSizeF contentSize() const { return m_contentSize; }
    void setContentSize(QSizeF size);
    qreal margin() const { return m_margin; }
    void setMargin(qreal margin);
    bool mirrored() const { return m_mirrored; }
    void setMirrored(bool mirrored);

    QSizeF popupSize() const;
    QPointF restingPosition() const;
    QPointF entryOffset() const;
    Q_INVOKABLE QPointF dragOffset(QPointF translation) const;
    Q_INVOKABLE bool dragDismisses(QPointF translation) const;

    // Writes `value` to `property` of `target` the way C++ does, which leaves
    // a binding on it in place: the popup lowers its owner's bound flag and
    // the owner's next change still reaches it.
    Q_INVOKABLE static void writeKeepingBinding(QObject *target, const QString &property, const QVariant &value);

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
