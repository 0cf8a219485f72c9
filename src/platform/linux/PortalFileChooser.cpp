#include "PortalFileChooser.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
const QString portalService = u"org.freedesktop.portal.Desktop"_s;
const QString portalPath = u"/org/freedesktop/portal/desktop"_s;
const QString chooserInterface = u"org.freedesktop.portal.FileChooser"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;

// The portal takes folders as NUL-terminated bytes.
QByteArray folderBytes(const QString &folder)
{
    return QFile::encodeName(folder) + '\0';
}
} // namespace

std::unique_ptr<FileChooser> makeSystemFileChooser()
{
    return std::make_unique<PortalFileChooser>();
}

PortalFileChooser::PortalFileChooser(QDBusConnection connection, QObject *parent)
    : FileChooser(parent)
    , m_connection(connection)
{
    if (!m_connection.isConnected())
        return;
    QDBusMessage get =
        QDBusMessage::createMethodCall(portalService, portalPath, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    get << chooserInterface << u"version"_s;
    auto *watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(get), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        m_available = !reply.isError() && reply.value().variant().toUInt() >= 1;
        Q_EMIT availableChanged();
    });
}

void PortalFileChooser::openFiles(const QString &title, const QString &folder)
{
    ask(u"OpenFile"_s, title, {{u"multiple"_s, true}, {u"current_folder"_s, folderBytes(folder)}});
}

void PortalFileChooser::saveFile(const QString &title, const QString &folder, const QString &name)
{
    ask(u"SaveFile"_s, title, {{u"current_folder"_s, folderBytes(folder)}, {u"current_name"_s, name}});
}

void PortalFileChooser::ask(const QString &method, const QString &title, QVariantMap options)
{
    stopListening();
    const QString token = u"vost%1"_s.arg(++m_requests);
    options.insert(u"handle_token"_s, token);
    options.insert(u"modal"_s, true);
    // /org/freedesktop/portal/desktop/request/SENDER/TOKEN, SENDER being the unique
    // name without its colon and with underscores for dots.
    QString sender = m_connection.baseService().mid(1);
    sender.replace(u'.', u'_');
    listenOn(portalPath + u"/request/"_s + sender + u'/' + token);

    QDBusMessage call = QDBusMessage::createMethodCall(portalService, portalPath, chooserInterface, method);
    // No parent window: the popover has stepped aside while the chooser is open.
    call << QString() << title << options;
    auto *watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *pending) {
        pending->deleteLater();
        const QDBusPendingReply<QDBusObjectPath> reply = *pending;
        if (reply.isError()) {
            stopListening();
            Q_EMIT failed();
            return;
        }
        // A portal older than handle tokens answers on a path of its own.
        if (reply.value().path() != m_requestPath) {
            stopListening();
            listenOn(reply.value().path());
        }
    });
}

void PortalFileChooser::listenOn(const QString &requestPath)
{
    m_requestPath = requestPath;
    m_connection.connect(portalService, requestPath, requestInterface, u"Response"_s, this,
                         SLOT(onResponse(uint, QVariantMap)));
}

void PortalFileChooser::stopListening()
{
    if (m_requestPath.isEmpty())
        return;
    m_connection.disconnect(portalService, m_requestPath, requestInterface, u"Response"_s, this,
                            SLOT(onResponse(uint, QVariantMap)));
    m_requestPath.clear();
}

void PortalFileChooser::onResponse(uint response, const QVariantMap &results)
{
    stopListening();
    // 0: chosen; 1: cancelled by the user; 2: ended some other way.
    if (response != 0) {
        Q_EMIT cancelled();
        return;
    }
    QStringList paths;
    for (const QString &uri : results.value(u"uris"_s).toStringList()) {
        const QUrl url(uri);
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    if (paths.isEmpty())
        Q_EMIT cancelled();
    else
        Q_EMIT chosen(paths);
}
