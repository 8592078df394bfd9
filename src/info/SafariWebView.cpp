#include "SafariWebView.h"

#include "InfoBuildConfig.h"
#include "UrlOpener.h"

#include <QMetaEnum>
#include <QTextStream>
#include <QTimer>

SafariWebView::SafariWebView(QObject *parent) : QObject(parent) { }

QString SafariWebView::rawValue(urls page)
{
    const QString site = QStringLiteral("https://" QUIETON_WEB_HOST);
    switch (page) {
    case privacy: return site + QStringLiteral("/privacyPolicy");
    case termsOfUs: return site + QStringLiteral("/termsOfUs");
    case leaveAFeedBack: return site + QStringLiteral("/sendFeedBack");
    case reportAProblem: return site + QStringLiteral("/reportAProblem");
    case suggestAFeature: return site + QStringLiteral("/suggestAFeature");
    }
    qFatal("SafariWebView: unknown page %d", int(page));
}

QUrl SafariWebView::address(urls page)
{
    const QUrl url(rawValue(page), QUrl::StrictMode);
    if (!url.isValid())
        qFatal("SafariWebView: the page address %s is not valid", qPrintable(rawValue(page)));
    return url;
}

void SafariWebView::setUrl(urls url)
{
    if (m_url == url)
        return;
    m_url = url;
    emit urlChanged();
}

QString SafariWebView::page() const
{
    return QString::fromLatin1(QMetaEnum::fromType<urls>().valueToKey(m_url));
}

void SafariWebView::setPage(const QString &name)
{
    bool known = false;
    const int value = QMetaEnum::fromType<urls>().keyToValue(name.toLatin1().constData(), &known);
    if (!known)
        qFatal("SafariWebView: there is no page named %s", qPrintable(name));
    setUrl(urls(value));
}

void SafariWebView::componentComplete()
{
    const QUrl page = address(m_url);
    if (!m_opener || !m_opener->open(page))
        QTextStream(stdout) << "## Could not open " << page.toString() << Qt::endl;
    // Closed on the next turn of the event loop, not while its holder is still
    // busy creating it.
    QTimer::singleShot(0, this, &SafariWebView::dismissed);
}
