#include "SessionHost.h"

#include "session/NotificationCenter.h"
#include "session/TelegramSession.h"

SessionHost::SessionHost(std::optional<Credentials> credentials, std::optional<AppBundle> bundle, QObject *parent)
    : QObject(parent)
    , m_credentials(std::move(credentials))
    , m_session(new TelegramSession({}, this))
{
    if (bundle)
        m_session->setBundle(std::move(bundle));
    connect(m_session, &TelegramSession::stepChanged, this, &SessionHost::isReadyChanged);
    connect(m_session, &TelegramSession::chatsChanged, this, &SessionHost::publishUnreadCount);
}

SessionHost::~SessionHost() = default;

QObject *SessionHost::sessionObject() const
{
    return m_session;
}

bool SessionHost::isReady() const
{
    return m_session->isReady();
}

void SessionHost::startIfPossible()
{
    if (m_credentials)
        m_session->start(m_credentials->apiID, m_credentials->apiHash);
}

void SessionHost::shutDown()
{
    m_session->shutDown();
}

void SessionHost::publishUnreadCount()
{
    qint64 total = 0;
    for (const Chat &chat : m_session->chats())
        total += std::max<qint64>(chat.unreadCount, 0);
    NotificationCenter::defaultCenter().post(QString::fromLatin1(NotificationName::unreadCountDidChange),
                                             QVariant::fromValue(total));
}
