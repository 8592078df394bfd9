#pragma once

#include "ColorScheme.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

class QJSEngine;
class QQmlEngine;

// The desktop's look as the screens see it (through Theme.qml): whether it
// is dark. QUIETON_TEXT_SCALE (a factor such as 3.1) scales the application
// font at start, so that tests and screenshots can show the largest text.
class Appearance : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ dark NOTIFY darkChanged)

public:
    static Appearance *create(QQmlEngine *, QJSEngine *);
    explicit Appearance(QObject *parent = nullptr);

    bool dark() const { return m_colorScheme.prefersDark(); }

    // Applies QUIETON_TEXT_SCALE to the application font; call before the
    // first window.
    static void applyTextScaleOverride();

signals:
    void darkChanged();

private:
    ColorScheme m_colorScheme;
};
