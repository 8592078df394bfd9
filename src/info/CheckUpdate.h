#pragma once

#include "LookupResult.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <QFuture>
#include <optional>
#include <variant>

class QNetworkAccessManager;
class QQuickItem;
class UrlOpener;

// Asks the store which version of the app is current and, when it is newer
// than this one, offers the update in an alert on the app's main window.
// Reading the information file and decoding the answer run off the UI thread;
// every failure ends as a line on standard output.
class CheckUpdate : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made at start-up")
    Q_MOC_INCLUDE(<QQuickItem>)
    Q_PROPERTY(bool isNeedUpdate READ isNeedUpdate NOTIFY isNeedUpdateChanged)
    Q_PROPERTY(QString urlAppStore READ urlAppStore CONSTANT)
    Q_PROPERTY(bool isTestFlight READ isTestFlight NOTIFY isTestFlightChanged)

public:
    enum class VersionError { invalidBundleInfo, invalidResponse, dataError };
    Q_ENUM(VersionError)

    // Where a checker looks; fromBuild() has this build's constants.
    struct Config
    {
        // Scheme, host and optional port ("https://host:port").
        QString lookupOrigin;
        QString apiOrigin;
        QString appId;
        QString apiToken;
        QString storePageUrl;
        QString infoPlistPath;
        // For the whole request, answer included.
        int deadlineMs = 60 * 1000;

        static Config fromBuild();
    };

    CheckUpdate(Config config, UrlOpener &opener, QObject *parent = nullptr);
    ~CheckUpdate() override;

    bool isNeedUpdate() const { return m_isNeedUpdate; }
    QString urlAppStore() const { return m_urlAppStore; }
    bool isTestFlight() const { return m_isTestFlight; }

    // Asks the store's lookup service, or the developer API's build list when
    // `isTestFlight`; `isOptional` false leaves the alert no way out but updating.
    Q_INVOKABLE void checkForUpdate(bool isOptional, bool isTestFlight);

    static std::optional<QString> infoPlistValue(const QString &path, const QString &key);

    // The most an answer may carry; a longer one is cut off as an error.
    static constexpr qint64 maxAnswerBytes = 64 * 1024;

    // Shows the update alert over `screen`'s window (null when it has none).
    Q_INVOKABLE QObject *showAppUpdateAlertWithVersion(QQuickItem *screen, const QString &version, bool force,
                                                       const QString &appURL, bool isTestFlight);
    // "Update Now": opens `appURL` when it is an address.
    Q_INVOKABLE void openAppURL(const QString &appURL);

signals:
    void isNeedUpdateChanged();
    void isTestFlightChanged();

private:
    using Failure = std::variant<VersionError, QString>;

    struct Outcome
    {
        std::optional<TestFlightInfo> beta;
        std::optional<AppInfo> store;
        std::optional<Failure> error;
    };
    void startRequest(const QUrl &address, const QString &currentVersion, bool force, bool isTestFlight);
    static Outcome judge(const QByteArray &body, bool isTestFlight);
    void decide(const Outcome &outcome, const QString &currentVersion, bool force, bool isTestFlight);
    void presentAlert(const QString &version, bool force, const std::optional<QString> &recordLink);

    Config m_config;
    UrlOpener &m_opener;
    bool m_isNeedUpdate = false;
    bool m_isTestFlight = false;
    const QString m_urlAppStore;
    QNetworkAccessManager *m_session = nullptr;
    // Waited for when the checker goes.
    QFuture<void> m_work;
};
