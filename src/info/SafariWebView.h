#pragma once

#include <QObject>
#include <QProperty>
#include <QQmlParserStatus>
#include <QString>
#include <QUrl>

#include "UrlOpener.h"
#include <QtQml/qqmlregistration.h>

// A page of the product's web site, opened in the desktop's browser when the
// element is created; it then asks its holder to close it (dismissed()), so
// the same row can open the page again. QML names the page: page: "privacy".
class SafariWebView : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(urls url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY urlChanged)
    Q_PROPERTY(UrlOpener *opener MEMBER m_opener REQUIRED)

public:
    // The product's pages, each one absolute address on the web site.
    enum urls { privacy, termsOfUs, leaveAFeedBack, reportAProblem, suggestAFeature };
    Q_ENUM(urls)

    using QObject::QObject;

    static QUrl address(urls page);

    urls url() const { return m_url; }
    void setUrl(urls url) { m_url = url; }
    // A name that is not a case is a programming error.
    QString page() const;
    void setPage(const QString &name);

    void classBegin() override { }
    void componentComplete() override;

signals:
    void urlChanged();
    void dismissed();

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SafariWebView, urls, m_url, privacy, &SafariWebView::urlChanged)
    UrlOpener *m_opener = nullptr;
};
