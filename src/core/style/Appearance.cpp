#include "Appearance.h"

#include <QFont>
#include <QGuiApplication>
#include <QJSEngine>

Appearance *Appearance::create(QQmlEngine *, QJSEngine *)
{
    static Appearance *const instance = new Appearance;
    QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
    return instance;
}

Appearance::Appearance(QObject *parent) : QObject(parent)
{
    connect(&m_colorScheme, &ColorScheme::prefersDarkChanged, this, &Appearance::darkChanged);
}

void Appearance::applyTextScaleOverride()
{
    bool ok = false;
    const qreal scale = qEnvironmentVariable("QUIETON_TEXT_SCALE").toDouble(&ok);
    if (!ok || scale <= 0 || scale > 10)
        return;
    QFont font = QGuiApplication::font();
    if (font.pointSizeF() > 0)
        font.setPointSizeF(font.pointSizeF() * scale);
    else
        font.setPixelSize(qRound(font.pixelSize() * scale));
    QGuiApplication::setFont(font);
}
