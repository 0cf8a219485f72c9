#include "session/TDLibChannel.h"

#include "tdlib/ReceiveLoop.h"
#include "tdlib/TDLibRuntime.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QJsonDocument>
#include <QTimer>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {
// How long quitting waits for TDLib to flush its database and close the client.
constexpr int closeTimeoutMs = 3000;
} // namespace

TDLibChannel::TDLibChannel(RequestSender requestSender, QObject *parent)
    : QObject(parent)
    , m_requestSender(std::move(requestSender))
    , m_bundle(AppBundle::main())
{}

TDLibChannel::~TDLibChannel()
{
    shutDown();
}

void TDLibChannel::setCredentials(qint64 apiID, const QString &apiHash)
{
    m_apiID = apiID;
    m_apiHash = apiHash;
}

std::optional<QString> TDLibChannel::load()
{
    try {
        if (!m_bundle)
            throw TDLibRuntime::RuntimeError::libraryNotBundled();
        m_runtime = std::make_shared<const TDLibRuntime>(*m_bundle);
    } catch (const TDLibRuntime::RuntimeError &error) {
        return error.errorDescription();
    }
    return std::nullopt;
}

void TDLibChannel::quietLog()
{
    // Errors only, unless VOST_TDLIB_LOG_VERBOSITY asks for more.
    bool ok = false;
    int level = qEnvironmentVariableIntValue("VOST_TDLIB_LOG_VERBOSITY", &ok);
    if (!ok)
        level = 1;
    const QByteArray request =
        R"({"@type":"setLogVerbosityLevel","new_verbosity_level":)" + QByteArray::number(level) + '}';
    m_runtime->execute(request.constData());
}

void TDLibChannel::startClient()
{
    m_clientID = m_runtime->createClientID();
    // The first request a new client receives; its answer needs no handling.
    m_runtime->send(*m_clientID, R"({"@type":"getOption","name":"version"})"_ba);
}

void TDLibChannel::startReceiving(EventHandler handler)
{
    m_receiveLoop = std::make_unique<ReceiveLoop>(m_runtime, this, std::move(handler));
    m_receiveLoop->start();
}

void TDLibChannel::send(const QString &type, const TdObject &fields)
{
    if (m_requestObserver)
        m_requestObserver(type, fields);
    if (m_requestSender) {
        m_requestSender(type, fields);
        return;
    }
    if (!m_runtime || !m_clientID)
        return;
    TdObject request = fields;
    request.insert("@type"_L1, type);
    m_runtime->send(*m_clientID, QJsonDocument(request).toJson(QJsonDocument::Compact));
}

std::optional<TdObject> TDLibChannel::read(const QByteArray &json) const
{
    if (m_responseObserver)
        m_responseObserver(json);
    // The parser rejects malformed UTF-8 (overlong forms, surrogates, bytes cut
    // short) as it goes: a pass of our own before it cost a thirtieth of a sync.
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (parseError.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    return document.object();
}

bool TDLibChannel::isStale(const TdObject &event) const
{
    const std::optional<qint64> clientID = integerFrom(event.value("@client_id"_L1));
    return clientID && m_clientID && *clientID != *m_clientID;
}

void TDLibChannel::finishQuitting()
{
    if (m_closeWait)
        m_closeWait->quit();
}

void TDLibChannel::shutDown()
{
    if (!m_receiveLoop)
        return;
    if (m_runtime && m_clientID && m_receiveLoop->isRunning() && QCoreApplication::instance()) {
        QEventLoop waiting;
        m_closeWait = &waiting;
        QTimer::singleShot(closeTimeoutMs, &waiting, &QEventLoop::quit);
        m_runtime->send(*m_clientID, R"({"@type":"close"})"_ba);
        waiting.exec();
        m_closeWait = nullptr;
    }
    m_receiveLoop.reset();
    // TDLib registers exit handlers inside its own code: unloading it before the
    // process ends would leave them pointing nowhere. Keep it mapped until then,
    // in a list that is never destroyed (and that leak checkers can still see).
    if (m_runtime) {
        static auto *keptLoaded = new std::vector<std::shared_ptr<const TDLibRuntime>>;
        if (std::find(keptLoaded->cbegin(), keptLoaded->cend(), m_runtime) == keptLoaded->cend())
            keptLoaded->push_back(m_runtime);
        m_runtime.reset();
    }
}
