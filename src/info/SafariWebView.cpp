#include "SafariWebView.h"

#include "InfoBuildConfig.h"
#include "UrlOpener.h"

#include <QMetaEnum>
#include <QTextStream>
#include <QTimer>

QUrl SafariWebView::address(urls page)
{
    const QString site = QStringLiteral("https://" QUIETON_WEB_HOST);
    const auto path = [page]() -> const char * {
        switch (page) {
        case privacy: return "/privacyPolicy";
        case termsOfUs: return "/termsOfUs";
        case leaveAFeedBack: return "/sendFeedBack";
        case reportAProblem: return "/reportAProblem";
        case suggestAFeature: return "/suggestAFeature";
        }
        qFatal("SafariWebView: unknown page %d", int(page));
    };
    const QString text = site + QLatin1StringView(path());
    const QUrl url(text, QUrl::StrictMode);
    if (!url.isValid())
        qFatal("SafariWebView: the page address %s is not valid", qPrintable(text));
    return url;
}

QString SafariWebView::page() const
{
    return QString::fromLatin1(QMetaEnum::fromType<urls>().valueToKey(m_url.value()));
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
    const QUrl page = address(m_url.value());
    if (!m_opener || !m_opener->open(page))
        QTextStream(stdout) << "## Could not open " << page.toString() << Qt::endl;
    // Closed on the next turn of the event loop, not while its holder is still
    // busy creating it.
    QTimer::singleShot(0, this, &SafariWebView::dismissed);
}
