#include "CheckUpdate.h"

#include "BuildConfig.h"
#include "InfoBuildConfig.h"
#include "UpdateAlertPresenter.h"
#include "UrlOpener.h"

#include <QFile>
#include <QGuiApplication>
#include <QMetaEnum>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTextStream>
#include <QtConcurrent/QtConcurrentRun>
#include <QTimer>
#include <QUrl>
#include <QXmlStreamReader>

namespace {

void print(const QStringList &items)
{
    QTextStream(stdout) << items.join(u' ') << Qt::endl;
}

// The top-level dictionary of a property list, its text values only: other
// value types are skipped. No value when the file is not a property list.
std::optional<QHash<QString, QString>> readPropertyList(QIODevice &file)
{
    QXmlStreamReader xml(&file);
    if (!xml.readNextStartElement() || xml.name() != QLatin1StringView("plist") || !xml.readNextStartElement()
        || xml.name() != QLatin1StringView("dict"))
        return std::nullopt;
    QHash<QString, QString> values;
    QString key;
    while (xml.readNextStartElement()) {
        if (xml.name() == QLatin1StringView("key")) {
            key = xml.readElementText();
        } else if (xml.name() == QLatin1StringView("string")) {
            values.insert(key, xml.readElementText());
            key.clear();
        } else {
            xml.skipCurrentElement();
            key.clear();
        }
    }
    if (xml.hasError())
        return std::nullopt;
    return values;
}

} // namespace

CheckUpdate::Config CheckUpdate::Config::fromBuild()
{
    return {
        QStringLiteral(QUIETON_STORE_LOOKUP_SCHEME "://" QUIETON_STORE_LOOKUP_HOST),
        QStringLiteral("https://" QUIETON_STORE_API_HOST),
        QStringLiteral(QUIETON_STORE_APP_ID),
        QStringLiteral(QUIETON_STORE_API_TOKEN),
        QStringLiteral(QUIETON_STORE_PAGE_URL),
        QStringLiteral(":/Quieton/Info/Info.plist"),
    };
}

CheckUpdate::CheckUpdate(Config config, UrlOpener &opener, QObject *parent)
    : QObject(parent), m_config(std::move(config)), m_opener(opener), m_urlAppStore(m_config.storePageUrl)
{
}

CheckUpdate::~CheckUpdate()
{
    m_work.waitForFinished();
}

void CheckUpdate::checkForUpdate(bool isOptional, bool isTestFlight)
{
    if (std::exchange(m_isTestFlight, isTestFlight) != isTestFlight)
        emit isTestFlightChanged();
    const bool force = !isOptional;
    struct Start
    {
        std::optional<QString> currentVersion;
        std::optional<QString> bundleId;
    };
    // The information file is read off the UI thread; the request starts back on it.
    m_work = QtConcurrent::run([path = m_config.infoPlistPath] {
        Start start{ infoPlistValue(path, QStringLiteral("CFBundleShortVersionString")), std::nullopt };
        if (start.currentVersion)
            start.bundleId = infoPlistValue(path, QStringLiteral("CFBundleIdentifier"));
        return start;
    }).then(this, [this, force, isTestFlight](const Start &start) {
        if (!start.currentVersion) {
            print({ QStringLiteral("Erro to decode app current version") });
            return;
        }
        // The bundle identifier goes in unescaped.
        const QUrl address(isTestFlight ? m_config.apiOrigin + QStringLiteral("/v1/apps/") + m_config.appId
                                                  + QStringLiteral("/builds")
                                        : m_config.lookupOrigin + QStringLiteral("/br/lookup?bundleId=")
                                                  + start.bundleId.value_or(QString()),
                           QUrl::StrictMode);
        if (!start.bundleId || !address.isValid() || address.scheme().isEmpty() || address.host().isEmpty()) {
            decide({ .error = VersionError::invalidBundleInfo }, *start.currentVersion, force, isTestFlight);
            return;
        }
        startRequest(address, *start.currentVersion, force, isTestFlight);
    });
}

std::optional<QString> CheckUpdate::infoPlistValue(const QString &path, const QString &key)
{
    QFile file(path);
    if (!file.exists()) {
        print({ QStringLiteral("Couldn't find file 'Info.plist'.") });
        return std::nullopt;
    }
    std::optional<QHash<QString, QString>> values;
    if (file.open(QIODevice::ReadOnly))
        values = readPropertyList(file);
    if (!values || !values->contains(key)) {
        print({ QStringLiteral("Couldn't find key '") + key + QStringLiteral("' in 'Info.plist'.") });
        return std::nullopt;
    }
    return values->value(key);
}

void CheckUpdate::startRequest(const QUrl &address, const QString &currentVersion, bool force, bool isTestFlight)
{
    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferNetwork);
    request.setTransferTimeout(m_config.deadlineMs);
    if (isTestFlight)
        request.setRawHeader("Authorization", "Bearer " + m_config.apiToken.toUtf8());

    if (!m_session)
        m_session = new QNetworkAccessManager(this);
    QNetworkReply *reply = m_session->get(request);
    // An answer that grows past its bound, or is not complete in time, is cut off.
    const auto cutOff = [reply](const QString &why) {
        reply->setProperty("cutOff", why);
        reply->abort();
    };
    // (What arrived is counted as it arrives and as it is unpacked.)
    const auto checkSize = [reply, cutOff](qint64 announced) {
        if (announced > maxAnswerBytes || reply->bytesAvailable() > maxAnswerBytes)
            cutOff(QStringLiteral("answer longer than %1 bytes").arg(maxAnswerBytes));
    };
    connect(reply, &QNetworkReply::downloadProgress, reply,
            [checkSize](qint64 received, qint64 total) { checkSize(std::max(received, total)); });
    connect(reply, &QNetworkReply::readyRead, reply, [checkSize] { checkSize(0); });
    QTimer::singleShot(m_config.deadlineMs, reply, [cutOff, deadline = m_config.deadlineMs] {
        cutOff(QStringLiteral("no complete answer within %1 ms").arg(deadline));
    });
    // The HTTP status is not looked at: whatever body came back is judged on
    // its own, off the UI thread.
    connect(reply, &QNetworkReply::finished, this, [this, reply, currentVersion, force, isTestFlight] {
        reply->deleteLater();
        if (const QVariant why = reply->property("cutOff"); why.isValid()) {
            decide({ .error = why.toString() }, currentVersion, force, isTestFlight);
            return;
        }
        const bool answered = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
        if (reply->error() != QNetworkReply::NoError && !answered) {
            decide({ .error = reply->errorString() }, currentVersion, force, isTestFlight);
            return;
        }
        m_work = QtConcurrent::run(&CheckUpdate::judge, reply->readAll(), isTestFlight)
                         .then(this, [this, currentVersion, force, isTestFlight](const Outcome &outcome) {
                             decide(outcome, currentVersion, force, isTestFlight);
                         });
    });
}

CheckUpdate::Outcome CheckUpdate::judge(const QByteArray &body, bool isTestFlight)
{
    if (body.isEmpty())
        return { .error = VersionError::invalidResponse };
    QString decodingError;
    const std::optional<LookupResult> result = LookupResult::decode(body, &decodingError);
    if (!result)
        return { .error = decodingError };
    Outcome outcome;
    if (!isTestFlight) {
        if (result->results && !result->results->isEmpty())
            outcome.store = result->results->constFirst();
    } else if (result->data && !result->data->isEmpty()) {
        outcome.beta = result->data->constFirst();
    }
    return outcome;
}

void CheckUpdate::decide(const Outcome &outcome, const QString &currentVersion, bool force, bool isTestFlight)
{
    const auto &[beta, store, error] = outcome;
    const QString label = isTestFlight ? QStringLiteral("TestFlight") : QStringLiteral("AppStore");
    if (error) {
        const QString description = std::holds_alternative<VersionError>(*error)
                ? QString::fromLatin1(QMetaEnum::fromType<VersionError>().valueToKey(int(std::get<VersionError>(*error))))
                : std::get<QString>(*error);
        print({ QStringLiteral("error getting app ") + label + QStringLiteral(" version: "), description });
    }
    if (!store && !beta) {
        print({ QStringLiteral("App does not exist on ") + label });
        return;
    }
    // Plain character-by-character ordering: "1.10" sorts before "1.9".
    const QString version = store ? store->version : beta->attributes.version;
    if (QString::compare(currentVersion, version, Qt::CaseSensitive) >= 0) {
        print({ QStringLiteral("Already on the last app version: "), currentVersion });
        return;
    }
    // Only a store record raises the flag; a beta's alert offers the store page.
    if (store && !std::exchange(m_isNeedUpdate, true))
        emit isNeedUpdateChanged();
    print({ QStringLiteral("Needs update: ") + label + QStringLiteral(" Version: ") + version
                    + QStringLiteral(" > Current version: "),
            currentVersion });
    presentAlert(version, force, store ? std::optional(store->trackViewUrl) : std::nullopt);
}

void CheckUpdate::presentAlert(const QString &version, bool force, const std::optional<QString> &recordLink)
{
    QQuickWindow *window = nullptr;
    for (QWindow *candidate : QGuiApplication::topLevelWindows()) {
        if (candidate->isVisible()) {
            window = qobject_cast<QQuickWindow *>(candidate);
            break;
        }
    }
    if (!window)
        return;
    // "Update Now" follows the record's link only to an https address on the store page's own host.
    const QString address = recordLink.value_or(m_urlAppStore);
    const QUrl link(address, QUrl::StrictMode);
    const QUrl store(m_urlAppStore);
    const bool onStore = link.isValid() && link.scheme() == QLatin1StringView("https") && link.userInfo().isEmpty()
            && !link.host().isEmpty() && link.host() == store.host() && link.port() == store.port();
    UpdateAlertPresenter::showAppUpdateAlert(window, this, version, force, onStore ? address : m_urlAppStore, m_isTestFlight);
}

QObject *CheckUpdate::showAppUpdateAlertWithVersion(QQuickItem *screen, const QString &version, bool force,
                                                    const QString &appURL, bool isTestFlight)
{
    return screen ? UpdateAlertPresenter::showAppUpdateAlert(screen->window(), this, version, force, appURL, isTestFlight)
                  : nullptr;
}

void CheckUpdate::openAppURL(const QString &appURL)
{
    const QUrl url(appURL, QUrl::StrictMode);
    if (url.isValid() && !url.scheme().isEmpty())
        m_opener.open(url);
}
