#pragma once

#include <QObject>
#include <QString>

// The advertisement slots the app has names for: one identifier per slot for
// test use and for real use, the choice between the two sets, and two flags
// about the advertising service. Nothing creates it, no screen shows an
// advertisement and no advertising service is linked; the identifiers are
// the advertising account's and are not part of the app.
class AdsManager : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool isMobileAdsStartCalled MEMBER isMobileAdsStartCalled NOTIFY isMobileAdsStartCalledChanged)

public:
    using QObject::QObject;

    // Which set of identifiers is in force: the test set or the real set.
    QString currentModeAd;
    QString appOpenTest;
    QString bannerTest;
    QString nativeTest;
    QString interstitialTest;
    QString bannerContactsReal;
    QString bannerHistoryReal;
    QString nativeNoHistoryReal;
    QString interstitialMoveScreenReal;
    QString interstitialEditPrefixReal;
    // Whether a native advertisement has been received.
    bool isGetAdNative = false;
    // Whether the advertising service has been started.
    bool isMobileAdsStartCalled = false;

signals:
    void isMobileAdsStartCalledChanged();
};
