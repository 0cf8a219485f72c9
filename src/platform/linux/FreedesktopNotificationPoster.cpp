#include "platform/linux/FreedesktopNotificationPoster.h"

#include "render/SmileyText.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QVariantMap>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

const QString notificationService = u"org.freedesktop.Notifications"_s;
const QString notificationPath = u"/org/freedesktop/Notifications"_s;
const QString &notificationInterface = notificationService;

// Servers that never report closing keep their notifications in a history; we stop
// following the oldest ones after this many.
constexpr qsizetype maximumRemembered = 500;

QDBusMessage methodCall(const QString &method)
{
    return QDBusMessage::createMethodCall(notificationService, notificationPath, notificationInterface, method);
}

} // namespace

FreedesktopNotificationPoster::FreedesktopNotificationPoster(QDBusConnection connection, QObject *parent)
    : NotificationPoster(parent)
    , m_connection(std::move(connection))
{
    if (!m_connection.isConnected())
        return;
    m_connection.connect(notificationService, notificationPath, notificationInterface, u"ActionInvoked"_s, this,
                         SLOT(onActionInvoked(uint, QString)));
    m_connection.connect(notificationService, notificationPath, notificationInterface, u"NotificationClosed"_s, this,
                         SLOT(onNotificationClosed(uint, uint)));
    m_connection.connect(notificationService, notificationPath, notificationInterface, u"NotificationReplied"_s, this,
                         SLOT(onNotificationReplied(uint, QString)));
    m_watcher =
        new QDBusServiceWatcher(notificationService, m_connection, QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
            [this](const QString &, const QString &oldOwner, const QString &) {
                // A server that went away takes its notifications and capabilities with it.
                if (!oldOwner.isEmpty())
                    forgetServer();
            });
}

FreedesktopNotificationPoster::~FreedesktopNotificationPoster() = default;

void FreedesktopNotificationPoster::show(const QString &identifier, const QString &title, const QString &body,
                                         const QString &chatID, const QString &messageID)
{
    if (!m_connection.isConnected())
        return;
    const Request request{identifier, title, body, chatID, messageID};
    if (m_capabilities) {
        send(request);
        return;
    }
    m_waiting.append(request);
    askForCapabilities();
}

std::optional<QString> FreedesktopNotificationPoster::chatID(uint notificationID) const
{
    const auto found = m_shown.constFind(notificationID);
    if (found == m_shown.cend())
        return std::nullopt;
    return found->chatID;
}

std::optional<QString> FreedesktopNotificationPoster::identifier(uint notificationID) const
{
    const auto found = m_shown.constFind(notificationID);
    if (found == m_shown.cend())
        return std::nullopt;
    return found->identifier;
}

std::optional<QString> FreedesktopNotificationPoster::messageID(uint notificationID) const
{
    const auto found = m_shown.constFind(notificationID);
    if (found == m_shown.cend())
        return std::nullopt;
    return found->messageID;
}

// The body is marked up on servers that say so; we ask once per server before the first
// notification, holding notifications until the answer. No answer: nothing is shown.
void FreedesktopNotificationPoster::askForCapabilities()
{
    if (m_askingForCapabilities)
        return;
    m_askingForCapabilities = true;
    auto *watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(methodCall(u"GetCapabilities"_s)), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this](QDBusPendingCallWatcher *call) {
        call->deleteLater();
        m_askingForCapabilities = false;
        const QDBusPendingReply<QStringList> reply = *call;
        const QList<Request> waiting = std::exchange(m_waiting, {});
        if (reply.isError())
            return;
        m_capabilities = reply.value();
        for (const Request &request : waiting)
            send(request);
    });
}

void FreedesktopNotificationPoster::send(const Request &request)
{
    const bool bodyIsMarkup = m_capabilities && m_capabilities->contains(u"body-markup"_s);
    // Typed smileys show as emoji on the desktop as everywhere else a message text is shown.
    const QString body = SmileyText::render(request.body);
    QVariantMap hints{
        {u"desktop-entry"_s, QStringLiteral(VOST_APP_ID)},
        {u"category"_s, u"im.received"_s},
        // We play our own sound.
        {u"suppress-sound"_s, true},
    };
    QStringList actions{u"default"_s, tr("Open")};
    if (m_capabilities->contains(u"inline-reply"_s)) {
        // The server asks for the reply itself and reports it with NotificationReplied.
        //: A notification's action that answers its message.
        actions << u"inline-reply"_s << tr("Reply");
        hints.insert(u"x-kde-reply-placeholder-text"_s, tr("Reply…"));
    } else if (m_capabilities->contains(u"actions"_s)) {
        actions << u"reply"_s << tr("Reply");
    }
    if (m_capabilities->contains(u"actions"_s))
        actions << u"mark-read"_s << tr("Mark as read");
    QDBusMessage message = methodCall(u"Notify"_s);
    message << u"Vost"_s << uint(0) << QString() << request.title << (bodyIsMarkup ? body.toHtmlEscaped() : body)
            << actions << hints << qint32(-1);

    ++m_inFlight;
    auto *watcher = new QDBusPendingCallWatcher(m_connection.asyncCall(message), this);
    const quint64 generation = m_serverGeneration;
    const Shown shown{request.identifier, request.chatID, request.messageID};
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
            [this, generation, shown](QDBusPendingCallWatcher *call) {
                call->deleteLater();
                --m_inFlight;
                const QDBusPendingReply<uint> reply = *call;
                if (reply.isError() || generation != m_serverGeneration)
                    return;
                const uint notificationID = reply.value();
                if (!m_shown.contains(notificationID))
                    m_order.append(notificationID);
                m_shown.insert(notificationID, shown);
                while (m_order.size() > maximumRemembered)
                    m_shown.remove(m_order.takeFirst());
            });
}

void FreedesktopNotificationPoster::forgetServer()
{
    ++m_serverGeneration;
    m_capabilities.reset();
    m_shown.clear();
    m_order.clear();
}

std::optional<FreedesktopNotificationPoster::Shown> FreedesktopNotificationPoster::use(uint notificationID)
{
    const auto found = m_shown.constFind(notificationID);
    if (found == m_shown.cend())
        return std::nullopt;
    const Shown shown = *found;
    // Used: some servers (dunst) would otherwise keep showing it.
    QDBusMessage close = methodCall(u"CloseNotification"_s);
    close << notificationID;
    m_connection.call(close, QDBus::NoBlock);
    return shown;
}

void FreedesktopNotificationPoster::onActionInvoked(uint notificationID, const QString &actionKey)
{
    // "inline-reply" is answered by NotificationReplied once the reply is typed.
    if (actionKey != "default"_L1 && actionKey != "reply"_L1 && actionKey != "mark-read"_L1)
        return;
    const std::optional<Shown> shown = use(notificationID);
    if (!shown)
        return;
    if (actionKey == "reply"_L1)
        Q_EMIT replyRequested(shown->chatID, shown->messageID);
    else if (actionKey == "mark-read"_L1)
        Q_EMIT markAsReadRequested(shown->chatID);
    else
        Q_EMIT clicked(shown->chatID);
}

void FreedesktopNotificationPoster::onNotificationReplied(uint notificationID, const QString &text)
{
    const std::optional<Shown> shown = use(notificationID);
    if (shown && !text.trimmed().isEmpty())
        Q_EMIT replied(shown->chatID, shown->messageID, text);
}

void FreedesktopNotificationPoster::onNotificationClosed(uint notificationID, uint /*reason*/)
{
    if (m_shown.remove(notificationID))
        m_order.removeOne(notificationID);
}

std::unique_ptr<NotificationPoster> makeSystemNotificationPoster()
{
    return std::make_unique<FreedesktopNotificationPoster>();
}
