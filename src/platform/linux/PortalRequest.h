#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QVariantMap>

#include <functional>

// One call to an XDG desktop portal method that answers through a Request object:
// the call returns the request's path at once and its Response signal carries the
// answer later. The path is known in advance from the handle token, so the answer
// cannot come before it is listened for. Deletes itself once it has told its end.
class PortalRequest : public QObject
{
    Q_OBJECT

public:
    static const QString service;
    static const QString path;

    // Sends `call`, whose options must hold `token` as their "handle_token".
    static PortalRequest *send(const QDBusConnection &connection, const QDBusMessage &call, const QString &token,
                               QObject *parent);
    // A token unique within this process.
    static QString nextToken();
    // Asks which version of the portal's `interface` runs; `answer` gets 0 when
    // none does. It is called in `context`'s thread while `context` lives.
    static void askVersion(const QDBusConnection &connection, const QString &interface, QObject *context,
                           std::function<void(uint version)> answer);

Q_SIGNALS:
    // 0: granted; 1: cancelled by the user; 2: ended some other way.
    void answered(uint response, const QVariantMap &results);
    // The portal refused the call itself.
    void failed();

private Q_SLOTS:
    void onResponse(uint response, const QVariantMap &results);

private:
    PortalRequest(const QDBusConnection &connection, QObject *parent);
    void listenOn(const QString &requestPath);
    void stopListening();

    QDBusConnection m_connection;
    QString m_requestPath;
};
