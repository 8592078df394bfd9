#pragma once

#include <QObject>
#include <QProperty>
#include <QQmlParserStatus>
#include <QString>
#include <QUrl>

#include "UrlOpener.h"
#include <QtQml/qqmlregistration.h>

// A page of the product's web site, shown when the element is created. On
// Linux the desktop's browser shows it: the element opens the address through
// the URL opener and then asks its holder to close it again (dismissed()), so
// the same row can open the page again.
//
// In QML the page is given by its case name: SafariWebView { page: "privacy" }.
class SafariWebView : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    Q_INTERFACES(QQmlParserStatus)
    QML_ELEMENT
    Q_PROPERTY(urls url READ url WRITE setUrl NOTIFY urlChanged)
    Q_PROPERTY(QString page READ page WRITE setPage NOTIFY urlChanged)
    // What opens the page.
    Q_PROPERTY(UrlOpener *opener MEMBER m_opener REQUIRED)

public:
    // The product's pages, each one absolute address on the web site.
    enum urls { privacy, termsOfUs, leaveAFeedBack, reportAProblem, suggestAFeature };
    Q_ENUM(urls)

    using QObject::QObject;

    // "https://" + the site's host + the page's path.
    static QUrl address(urls page);

    urls url() const { return m_url; }
    void setUrl(urls url) { m_url = url; }
    // The case's name; a name that is not a case is a programming error.
    QString page() const;
    void setPage(const QString &name);

    void classBegin() override { }
    void componentComplete() override;

signals:
    void urlChanged();
    // The page went to the browser: the holder closes this sheet.
    void dismissed();

private:
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(SafariWebView, urls, m_url, privacy, &SafariWebView::urlChanged)
    UrlOpener *m_opener = nullptr;
};
