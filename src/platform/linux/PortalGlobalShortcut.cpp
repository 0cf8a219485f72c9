#include "PortalGlobalShortcut.h"

#include "DBusStructure.h"
#include "PortalRequest.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QHash>
#include <QKeyCombination>

using namespace Qt::StringLiterals;

namespace {
const QString shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;
} // namespace

QDBusArgument &operator<<(QDBusArgument &argument, const PortalShortcut &shortcut)
{
    return DBusStructure::write(argument, shortcut.id, shortcut.properties);
}

const QDBusArgument &operator>>(const QDBusArgument &argument, PortalShortcut &shortcut)
{
    return DBusStructure::read(argument, shortcut.id, shortcut.properties);
}

namespace {
// Keysym names of the keys whose Qt names differ from them.
QString keyName(Qt::Key key)
{
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return QString(QChar(u'a' + (key - Qt::Key_A)));
    static const QHash<Qt::Key, QString> names{{Qt::Key_Space, u"space"_s},
                                               {Qt::Key_Return, u"Return"_s},
                                               {Qt::Key_Enter, u"KP_Enter"_s},
                                               {Qt::Key_Escape, u"Escape"_s},
                                               {Qt::Key_Tab, u"Tab"_s},
                                               {Qt::Key_Backspace, u"BackSpace"_s},
                                               {Qt::Key_Insert, u"Insert"_s},
                                               {Qt::Key_Delete, u"Delete"_s},
                                               {Qt::Key_Home, u"Home"_s},
                                               {Qt::Key_End, u"End"_s},
                                               {Qt::Key_PageUp, u"Page_Up"_s},
                                               {Qt::Key_PageDown, u"Page_Down"_s},
                                               {Qt::Key_Left, u"Left"_s},
                                               {Qt::Key_Right, u"Right"_s},
                                               {Qt::Key_Up, u"Up"_s},
                                               {Qt::Key_Down, u"Down"_s},
                                               {Qt::Key_Print, u"Print"_s},
                                               {Qt::Key_Comma, u"comma"_s},
                                               {Qt::Key_Period, u"period"_s},
                                               {Qt::Key_Slash, u"slash"_s},
                                               {Qt::Key_Minus, u"minus"_s},
                                               {Qt::Key_Equal, u"equal"_s},
                                               {Qt::Key_Semicolon, u"semicolon"_s},
                                               {Qt::Key_Apostrophe, u"apostrophe"_s},
                                               {Qt::Key_BracketLeft, u"bracketleft"_s},
                                               {Qt::Key_BracketRight, u"bracketright"_s},
                                               {Qt::Key_Backslash, u"backslash"_s},
                                               {Qt::Key_QuoteLeft, u"grave"_s}};
    if (const auto name = names.constFind(key); name != names.cend())
        return *name;
    // Digits and F1…F35 read the same in both.
    return QKeySequence(key).toString(QKeySequence::PortableText);
}
} // namespace

const QString PortalGlobalShortcut::shortcutID = u"open-vost"_s;

std::unique_ptr<GlobalShortcut> makeWaylandGlobalShortcut()
{
    return std::make_unique<PortalGlobalShortcut>();
}

PortalGlobalShortcut::PortalGlobalShortcut(QDBusConnection connection, QObject *parent)
    : GlobalShortcut(parent)
    , m_connection(connection)
{
    // Known by name before Activated is connected to a slot taking it.
    qRegisterMetaType<QDBusObjectPath>();
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    if (!m_connection.isConnected())
        return;
    m_connection.connect(PortalRequest::service, PortalRequest::path, shortcutsInterface, u"Activated"_s, this,
                         SLOT(onActivated(QDBusObjectPath, QString, qulonglong, QVariantMap)));
    PortalRequest::askVersion(m_connection, shortcutsInterface, this, [this](uint version) {
        m_available = version >= 1;
        Q_EMIT availabilityChanged();
    });
}

PortalGlobalShortcut::~PortalGlobalShortcut()
{
    closeSession();
}

QString PortalGlobalShortcut::trigger(const QKeySequence &sequence)
{
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        return {};
    const QKeyCombination combination = sequence[0];
    QStringList parts;
    const Qt::KeyboardModifiers modifiers = combination.keyboardModifiers();
    if (modifiers & Qt::ControlModifier)
        parts.append(u"CTRL"_s);
    if (modifiers & Qt::AltModifier)
        parts.append(u"ALT"_s);
    if (modifiers & Qt::ShiftModifier)
        parts.append(u"SHIFT"_s);
    if (modifiers & Qt::MetaModifier)
        parts.append(u"LOGO"_s);
    parts.append(keyName(combination.key()));
    return parts.join(u'+');
}

bool PortalGlobalShortcut::setShortcut(const QKeySequence &sequence)
{
    const QString wanted = trigger(sequence);
    // The same combination again: the desktop's answer stands (or is on its way).
    if (wanted == m_trigger && (!m_session.isEmpty() || m_request))
        return m_available && !m_refused;
    // The desktop binds a shortcut once per session: a new combination takes a new one.
    delete m_request;
    closeSession();
    m_trigger = wanted;
    m_refused = false;
    if (!m_available || m_trigger.isEmpty())
        return m_available && m_trigger.isEmpty();
    createSession();
    return true;
}

void PortalGlobalShortcut::createSession()
{
    const QString token = PortalRequest::nextToken();
    QDBusMessage call = QDBusMessage::createMethodCall(PortalRequest::service, PortalRequest::path, shortcutsInterface,
                                                       u"CreateSession"_s);
    call << QVariantMap{{u"handle_token"_s, token}, {u"session_handle_token"_s, token}};
    m_request = PortalRequest::send(m_connection, call, token, this);
    connect(m_request, &PortalRequest::failed, this, [this] { settle(false); });
    connect(m_request, &PortalRequest::answered, this, [this](uint response, const QVariantMap &results) {
        // Older portals hand the session's path as a string, newer ones as a path.
        const QVariant handle = results.value(u"session_handle"_s);
        m_session = handle.canConvert<QDBusObjectPath>() ? handle.value<QDBusObjectPath>().path() : handle.toString();
        if (response != 0 || m_session.isEmpty()) {
            m_session.clear();
            settle(false);
            return;
        }
        bind();
    });
}

void PortalGlobalShortcut::bind()
{
    const QString token = PortalRequest::nextToken();
    QDBusMessage call = QDBusMessage::createMethodCall(PortalRequest::service, PortalRequest::path, shortcutsInterface,
                                                       u"BindShortcuts"_s);
    const QList<PortalShortcut> shortcuts{
        {shortcutID,
         {{u"description"_s, QCoreApplication::translate("GlobalShortcut", "Open or close Vost")},
          {u"preferred_trigger"_s, m_trigger}}}};
    // No parent window: the shortcut is chosen while the popover may be closed.
    call << QVariant::fromValue(QDBusObjectPath(m_session)) << QVariant::fromValue(shortcuts) << QString()
         << QVariantMap{{u"handle_token"_s, token}};
    m_request = PortalRequest::send(m_connection, call, token, this);
    connect(m_request, &PortalRequest::failed, this, [this] { settle(false); });
    connect(m_request, &PortalRequest::answered, this, [this](uint response, const QVariantMap &results) {
        QList<PortalShortcut> bound;
        if (results.value(u"shortcuts"_s).canConvert<QDBusArgument>())
            results.value(u"shortcuts"_s).value<QDBusArgument>() >> bound;
        const bool held = response == 0 && std::any_of(bound.cbegin(), bound.cend(),
                                                       [](const PortalShortcut &s) { return s.id == shortcutID; });
        settle(held);
    });
}

void PortalGlobalShortcut::settle(bool held)
{
    m_refused = !held;
    Q_EMIT settled(held);
}

void PortalGlobalShortcut::closeSession()
{
    if (m_session.isEmpty())
        return;
    m_connection.send(QDBusMessage::createMethodCall(PortalRequest::service, m_session,
                                                     u"org.freedesktop.portal.Session"_s, u"Close"_s));
    m_session.clear();
}

void PortalGlobalShortcut::onActivated(const QDBusObjectPath &session, const QString &shortcut, qulonglong,
                                       const QVariantMap &)
{
    if (!m_session.isEmpty() && session.path() == m_session && shortcut == shortcutID)
        Q_EMIT activated();
}
