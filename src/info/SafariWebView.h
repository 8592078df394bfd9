#pragma once

#include <QObject>
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
    Q_PROPERTY(QString address READ addressText NOTIFY urlChanged)
    // What opens the page.
    Q_PROPERTY(UrlOpener *opener MEMBER m_opener REQUIRED)

public:
    // The product's pages, each one absolute address on the web site.
    enum urls { privacy, termsOfUs, leaveAFeedBack, reportAProblem, suggestAFeature };
    Q_ENUM(urls)

    explicit SafariWebView(QObject *parent = nullptr);

    // The address text of a page: "https://" + the site's host + its path.
    static QString rawValue(urls page);
    // The same as an address; the texts are fixed, so this cannot fail.
    static QUrl address(urls page);

    urls url() const { return m_url; }
    void setUrl(urls url);
    // The case's name; a name that is not a case is a programming error.
    QString page() const;
    void setPage(const QString &name);
    QString addressText() const { return rawValue(m_url); }

    void classBegin() override { }
    void componentComplete() override;

signals:
    void urlChanged();
    // The page went to the browser: the holder closes this sheet.
    void dismissed();

private:
    urls m_url = privacy;
    UrlOpener *m_opener = nullptr;
};
