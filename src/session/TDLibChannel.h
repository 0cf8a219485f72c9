#pragma once

#include "bundle/AppBundle.h"
#include "tdlib/TdJson.h"

#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QEventLoop;
class ReceiveLoop;
class TDLibRuntime;

// The way to TDLib and back: loads the library, owns the client and the loop that
// receives its events, sends each request (or hands it to a request sender), shows
// requests and events to their observers, and reads each event's JSON.
class TDLibChannel : public QObject
{
    Q_OBJECT

public:
    // The type and the fields without "@type".
    using RequestSender = std::function<void(const QString &type, const TdObject &fields)>;
    using RequestObserver = std::function<void(const QString &type, const TdObject &fields)>;
    using ResponseObserver = std::function<void(const QByteArray &json)>;
    using EventHandler = std::function<void(const QByteArray &json)>;

    // When requestSender is set, every request goes to it instead of TDLib.
    explicit TDLibChannel(RequestSender requestSender = {}, QObject *parent = nullptr);
    ~TDLibChannel() override;

    void setBundle(std::optional<AppBundle> bundle) { m_bundle = std::move(bundle); }
    void setRequestObserver(RequestObserver observer) { m_requestObserver = std::move(observer); }
    void setResponseObserver(ResponseObserver observer) { m_responseObserver = std::move(observer); }
    void setCredentials(qint64 apiID, const QString &apiHash);
    std::optional<qint64> apiID() const { return m_apiID; }
    std::optional<QString> apiHash() const { return m_apiHash; }

    // Loads TDLib from the bundle; what went wrong, when it could not.
    std::optional<QString> load();
    bool isLoaded() const { return m_runtime != nullptr; }
    // TDLib logs its own debugging to standard error unless told otherwise.
    void quietLog();
    // A new client, which the requests from now on go to.
    void startClient();
    void startReceiving(EventHandler handler);

    // Requests before the client exists are dropped, not queued.
    void send(const QString &type, const TdObject &fields);
    // Shows a raw event to the observer and reads it: nothing when it is not one
    // JSON object.
    std::optional<TdObject> read(const QByteArray &json) const;
    // An event of a client left behind (after logging out).
    bool isStale(const TdObject &event) const;

    // Set while quitting waits for the client to close.
    bool isQuitting() const { return m_closeWait != nullptr; }
    // The client closed: quitting waits no more.
    void finishQuitting();
    // Closes the client so its database is flushed, waiting for it at most a few
    // seconds, and ends the receive loop.
    void shutDown();

private:
    RequestSender m_requestSender;
    RequestObserver m_requestObserver;
    ResponseObserver m_responseObserver;
    std::optional<AppBundle> m_bundle;
    std::optional<qint64> m_apiID;
    std::optional<QString> m_apiHash;
    std::shared_ptr<const TDLibRuntime> m_runtime;
    std::optional<int> m_clientID;
    std::unique_ptr<ReceiveLoop> m_receiveLoop;
    QEventLoop *m_closeWait = nullptr;
};
