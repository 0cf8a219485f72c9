#include "PortalRequest.h"

#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

using namespace Qt::StringLiterals;

namespace {
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
} // namespace

const QString PortalRequest::service = u"org.freedesktop.portal.Desktop"_s;
const QString PortalRequest::path = u"/org/freedesktop/portal/desktop"_s;

PortalRequest::PortalRequest(const QDBusConnection &connection, QObject *parent)
    : QObject(parent)
    , m_connection(connection)
{}

QString PortalRequest::nextToken()
{
    static int requests = 0;
    return u"vost%1"_s.arg(++requests);
}

void PortalRequest::askVersion(const QDBusConnection &connection, const QString &interface, QObject *context,
                               std::function<void(uint)> answer)
{
    QDBusMessage get = QDBusMessage::createMethodCall(service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << interface << u"version"_s;
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection(connection).asyncCall(get), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [answer = std::move(answer)](QDBusPendingCallWatcher *call) {
                         call->deleteLater();
                         const QDBusPendingReply<QDBusVariant> reply = *call;
                         answer(reply.isError() ? 0 : reply.value().variant().toUInt());
                     });
}

PortalRequest *PortalRequest::send(const QDBusConnection &connection, const QDBusMessage &call, const QString &token,
                                   QObject *parent)
{
    auto *request = new PortalRequest(connection, parent);
    // /org/freedesktop/portal/desktop/request/SENDER/TOKEN, SENDER being the unique
    // name without its colon and with underscores for dots.
    QString sender = connection.baseService().mid(1);
    sender.replace(u'.', u'_');
    request->listenOn(path + u"/request/"_s + sender + u'/' + token);

    auto *watcher = new QDBusPendingCallWatcher(request->m_connection.asyncCall(call), request);
    connect(watcher, &QDBusPendingCallWatcher::finished, request, [request](QDBusPendingCallWatcher *pending) {
        pending->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *pending;
        if (reply.isError()) {
            request->stopListening();
            Q_EMIT request->failed();
            request->deleteLater();
            return;
        }
        // A portal older than handle tokens answers on a path of its own.
        if (reply.value().path() != request->m_requestPath) {
            request->stopListening();
            request->listenOn(reply.value().path());
        }
    });
    return request;
}

void PortalRequest::listenOn(const QString &requestPath)
{
    m_requestPath = requestPath;
    m_connection.connect(service, requestPath, requestInterface, u"Response"_s, this,
                         SLOT(onResponse(uint, QVariantMap)));
}

void PortalRequest::stopListening()
{
    if (m_requestPath.isEmpty())
        return;
    m_connection.disconnect(service, m_requestPath, requestInterface, u"Response"_s, this,
                            SLOT(onResponse(uint, QVariantMap)));
    m_requestPath.clear();
}

void PortalRequest::onResponse(uint response, const QVariantMap &results)
{
    stopListening();
    Q_EMIT answered(response, results);
    deleteLater();
}
