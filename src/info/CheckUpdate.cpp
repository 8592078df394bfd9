#include "CheckUpdate.h"

#include "BuildConfig.h"
#include "InfoBuildConfig.h"
#include "UpdateAlertPresenter.h"

#include <QFile>
#include <QGuiApplication>
#include <QJSEngine>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QQuickWindow>
#include <QTextStream>
#include <QThread>
#include <QTimer>
#include <QUrl>
#include <QXmlStreamReader>

namespace {

// Prints its items on one line, separated by single spaces.
void print(const QStringList &items)
{
    QTextStream(stdout) << items.join(u' ') << Qt::endl;
}

QString describe(CheckUpdate::VersionError error)
{
    switch (error) {
    case CheckUpdate::VersionError::invalidBundleInfo: return QStringLiteral("invalidBundleInfo");
    case CheckUpdate::VersionError::invalidResponse: return QStringLiteral("invalidResponse");
    case CheckUpdate::VersionError::dataError: return QStringLiteral("dataError");
    }
    return {};
}

// The top-level dictionary of a property list, its text values only: other
// value types are skipped. No value when the file is not a property list.
std::optional<QHash<QString, QString>> readPropertyList(QIODevice &file)
{
    QXmlStreamReader xml(&file);
    if (!xml.readNextStartElement() || xml.name() != QLatin1StringView("plist"))
        return std::nullopt;
    if (!xml.readNextStartElement() || xml.name() != QLatin1StringView("dict"))
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
        QStringLiteral(":/Quieton/info/Info.plist"),
    };
}

namespace {
CheckUpdate *&sharedSlot()
{
    static CheckUpdate *instance = nullptr;
    return instance;
}
} // namespace

CheckUpdate *CheckUpdate::shared()
{
    CheckUpdate *&instance = sharedSlot();
    if (!instance)
        instance = new CheckUpdate(Config::fromBuild());
    return instance;
}

void CheckUpdate::setShared(CheckUpdate *checker)
{
    sharedSlot() = checker;
}

CheckUpdate *CheckUpdate::create(QQmlEngine *, QJSEngine *)
{
    CheckUpdate *instance = shared();
    QJSEngine::setObjectOwnership(instance, QJSEngine::CppOwnership);
    return instance;
}

CheckUpdate::CheckUpdate(Config config, QObject *parent)
    : QObject(parent), m_config(std::move(config)), m_urlAppStore(m_config.storePageUrl)
{
}

CheckUpdate::~CheckUpdate()
{
    if (m_queue) {
        m_queue->quit();
        m_queue->wait();
        delete m_queue;
    }
}

void CheckUpdate::ensureQueue()
{
    if (m_queue)
        return;
    m_queue = new QThread;
    m_queue->setObjectName(QStringLiteral("update check"));
    m_queueContext = new QObject;
    m_queueContext->moveToThread(m_queue);
    connect(m_queue, &QThread::finished, m_queueContext, &QObject::deleteLater);
    // A check still under way when the app quits is dropped, not waited for.
    if (QCoreApplication *application = QCoreApplication::instance()) {
        connect(application, &QCoreApplication::aboutToQuit, this, [this] {
            m_queue->quit();
            m_queue->wait();
        });
    }
    m_queue->start();
}

void CheckUpdate::checkForUpdate(bool isOptional, bool isTestFlight)
{
    if (m_isTestFlight.exchange(isTestFlight) != isTestFlight)
        emit isTestFlightChanged();
    ensureQueue();
    const bool force = !isOptional;
    QMetaObject::invokeMethod(m_queueContext, [this, force, isTestFlight] { startCheck(force, isTestFlight); });
}

std::optional<QString> CheckUpdate::infoPlistValue(const QString &key) const
{
    QFile file(m_config.infoPlistPath);
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

QVariant CheckUpdate::infoPlistText(const QString &key) const
{
    const std::optional<QString> value = infoPlistValue(key);
    return value ? QVariant(*value) : QVariant();
}

QString CheckUpdate::lookupAddress(const QString &bundleId) const
{
    return m_config.lookupOrigin + QStringLiteral("/br/lookup?bundleId=") + bundleId;
}

QString CheckUpdate::buildsAddress() const
{
    return m_config.apiOrigin + QStringLiteral("/v1/apps/") + m_config.appId + QStringLiteral("/builds");
}

QString CheckUpdate::followableLink(const QString &link) const
{
    const QUrl url(link, QUrl::StrictMode);
    const QUrl store(m_urlAppStore);
    const bool onStore = url.isValid() && url.scheme() == QLatin1StringView("https") && url.userInfo().isEmpty()
            && !url.host().isEmpty() && url.host() == store.host() && url.port() == store.port();
    return onStore ? link : m_urlAppStore;
}

bool CheckUpdate::isVersionLess(const QString &current, const QString &store)
{
    return QString::compare(current, store, Qt::CaseSensitive) < 0;
}

// On the background thread: the current version, then the request.
void CheckUpdate::startCheck(bool force, bool isTestFlight)
{
    const std::optional<QString> currentVersion = infoPlistValue(QStringLiteral("CFBundleShortVersionString"));
    if (!currentVersion) {
        print({ QStringLiteral("Erro to decode app current version") });
        return;
    }
    const QString current = *currentVersion;

    auto failBundleInfo = [this, current, force, isTestFlight] {
        QMetaObject::invokeMethod(this, [this, current, force, isTestFlight] {
            decide(std::nullopt, std::nullopt, Failure(VersionError::invalidBundleInfo), current, force, isTestFlight);
        }, Qt::QueuedConnection);
    };

    const std::optional<QString> bundleId = infoPlistValue(QStringLiteral("CFBundleIdentifier"));
    if (!bundleId) {
        failBundleInfo();
        return;
    }
    const QString lookup = lookupAddress(*bundleId);
    const QString builds = buildsAddress();
    const QUrl address(isTestFlight ? builds : lookup, QUrl::StrictMode);
    if (!address.isValid() || address.scheme().isEmpty() || address.host().isEmpty()) {
        failBundleInfo();
        return;
    }

    QNetworkRequest request(address);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::PreferNetwork);
    request.setTransferTimeout(m_config.deadlineMs);
    if (isTestFlight)
        request.setRawHeader("Authorization", "Bearer " + m_config.apiToken.toUtf8());

    if (!m_session)
        m_session = new QNetworkAccessManager(m_queueContext);
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
    connect(reply, &QNetworkReply::finished, m_queueContext, [this, reply, current, force, isTestFlight] {
        reply->deleteLater();
        handleReply(reply, current, force, isTestFlight);
    });
}

// On the background thread, once the answer (or the failure) is in. The HTTP
// status is not looked at: whatever body came back is judged on its own.
void CheckUpdate::handleReply(QNetworkReply *reply, const QString &currentVersion, bool force, bool isTestFlight)
{
    if (const QVariant why = reply->property("cutOff"); why.isValid()) {
        decide(std::nullopt, std::nullopt, Failure(why.toString()), currentVersion, force, isTestFlight);
        return;
    }
    const bool answered = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    if (reply->error() != QNetworkReply::NoError && !answered) {
        decide(std::nullopt, std::nullopt, Failure(reply->errorString()), currentVersion, force, isTestFlight);
        return;
    }
    const QByteArray body = reply->readAll();
    if (body.isEmpty()) {
        decide(std::nullopt, std::nullopt, Failure(VersionError::invalidResponse), currentVersion, force, isTestFlight);
        return;
    }
    QString decodingError;
    const std::optional<LookupResult> result = LookupResult::decode(body, &decodingError);
    if (!result) {
        decide(std::nullopt, std::nullopt, Failure(decodingError), currentVersion, force, isTestFlight);
        return;
    }
    std::optional<TestFlightInfo> beta;
    std::optional<AppInfo> store;
    if (!isTestFlight) {
        if (result->results && !result->results->isEmpty())
            store = result->results->constFirst();
    } else if (result->data && !result->data->isEmpty()) {
        beta = result->data->constFirst();
    }
    decide(beta, store, std::nullopt, currentVersion, force, isTestFlight);
}

void CheckUpdate::decide(const std::optional<TestFlightInfo> &beta, const std::optional<AppInfo> &store,
                         const std::optional<Failure> &error, const QString &currentVersion, bool force,
                         bool isTestFlight)
{
    const QString label = isTestFlight ? QStringLiteral("TestFlight") : QStringLiteral("AppStore");
    if (error) {
        const QString description = std::holds_alternative<VersionError>(*error)
                ? describe(std::get<VersionError>(*error))
                : std::get<QString>(*error);
        print({ QStringLiteral("error getting app ") + label + QStringLiteral(" version: "), description });
    }

    auto needsUpdate = [&](const QString &version) {
        print({ QStringLiteral("Needs update: ") + label + QStringLiteral(" Version: ") + version
                        + QStringLiteral(" > Current version: "),
                currentVersion });
    };
    auto upToDate = [&] { print({ QStringLiteral("Already on the last app version: "), currentVersion }); };

    if (store) {
        if (isVersionLess(currentVersion, store->version)) {
            if (!m_isNeedUpdate.exchange(true))
                QMetaObject::invokeMethod(this, &CheckUpdate::isNeedUpdateChanged, Qt::QueuedConnection);
            needsUpdate(store->version);
            QMetaObject::invokeMethod(this, [this, version = store->version, force, link = store->trackViewUrl] {
                presentAlert(version, force, link);
            }, Qt::QueuedConnection);
        } else {
            upToDate();
        }
    } else if (beta) {
        if (isVersionLess(currentVersion, beta->attributes.version)) {
            needsUpdate(beta->attributes.version);
            QMetaObject::invokeMethod(this, [this, version = beta->attributes.version, force] {
                presentAlert(version, force, std::nullopt);
            }, Qt::QueuedConnection);
        } else {
            upToDate();
        }
    } else {
        print({ QStringLiteral("App does not exist on ") + label });
    }
}

// On the UI thread: the alert goes to the app's first window, if it has one.
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
    UpdateAlertPresenter::showAppUpdateAlert(window, version, force, followableLink(recordLink.value_or(m_urlAppStore)),
                                             m_isTestFlight);
}
