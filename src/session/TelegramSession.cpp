// Construction, published state and the request channel.

#include "session/TelegramSession.h"

#include "session/Announcer.h"
#include "session/AuthorizationStore.h"
#include "session/ChangedValue.h"
#include "session/ChatSearchStore.h"
#include "session/ContactStore.h"
#include "session/DownloadStore.h"
#include "session/RepliedMessageStore.h"
#include "session/StickerStore.h"
#include "session/TDLibChannel.h"
#include "session/UserStore.h"

#include <QStringDecoder>

using namespace Qt::StringLiterals;

TelegramSession::TelegramSession(RequestSender requestSender, QObject *parent)
    : QObject(parent)
    , m_channel(new TDLibChannel(std::move(requestSender), this))
    , m_announcer(std::make_unique<Announcer>())
    , m_authorization(new AuthorizationStore(storeSender(), this))
    , m_chatList(new ChatListStore(this))
    , m_users(new UserStore(storeSender(), this))
    , m_stickers(new StickerStore(storeSender(), this))
    , m_downloads(new DownloadStore(storeSender(), this))
    , m_contacts(new ContactStore(storeSender(), *m_users, this))
    , m_chatSearch(new ChatSearchStore(storeSender(), this))
    , m_replied(new RepliedMessageStore(storeSender(), this))
{
    connect(m_chatSearch, &ChatSearchStore::resultShown, this, &TelegramSession::loadHistoryAround);
    connect(m_authorization, &AuthorizationStore::stepChanged, this, &TelegramSession::stepChanged);
    connect(m_authorization, &AuthorizationStore::codeInfoChanged, this, &TelegramSession::codeInfoChanged);
    connect(m_authorization, &AuthorizationStore::errorMessageChanged, this, &TelegramSession::errorMessageChanged);
    connect(m_authorization, &AuthorizationStore::startupStatusChanged, this, &TelegramSession::startupStatusChanged);
    connect(m_authorization, &AuthorizationStore::currentAccountNameChanged, this,
            &TelegramSession::currentAccountNameChanged);
    connect(m_authorization, &AuthorizationStore::currentAccountPhoneNumberChanged, this,
            &TelegramSession::currentAccountPhoneNumberChanged);
    connect(m_authorization, &AuthorizationStore::tdlibParametersWanted, this, &TelegramSession::submitTDLibParameters);
    connect(m_authorization, &AuthorizationStore::signedIn, this, &TelegramSession::completeSignIn);
    connect(m_authorization, &AuthorizationStore::currentUserReceived, this, &TelegramSession::storeUser);
    connect(m_authorization, &AuthorizationStore::clientClosed, m_channel, &TDLibChannel::finishQuitting);
    connect(m_authorization, &AuthorizationStore::accountLeft, this, [this] {
        resetAccountState();
        beginClient();
    });
    connect(m_users, &UserStore::presenceChanged, this, &TelegramSession::refreshPresence);
    connect(m_users, &UserStore::userStored, this, &TelegramSession::republishChatsWithMessages);
    connect(m_users, &UserStore::avatarArrived, this, [this](qint64 userID) {
        republishChatsWithMessages();
        m_contacts->refreshEntries(userID);
    });
    connect(m_stickers, &StickerStore::recentStickersChanged, this, &TelegramSession::recentStickersChanged);
    connect(m_stickers, &StickerStore::recentStickersLoadedChanged, this,
            &TelegramSession::recentStickersLoadedChanged);
    connect(m_stickers, &StickerStore::stickerErrorChanged, this, &TelegramSession::stickerErrorChanged);
    connect(m_chatList, &ChatListStore::changed, this, &TelegramSession::chatsChanged);
    connect(m_downloads, &DownloadStore::progressChanged, this, &TelegramSession::downloadProgressChanged);
    connect(m_contacts, &ContactStore::contactsChanged, this, &TelegramSession::contactsChanged);
    connect(m_contacts, &ContactStore::contactResultsChanged, this, &TelegramSession::contactResultsChanged);
    connect(m_contacts, &ContactStore::conversationErrorChanged, this, &TelegramSession::conversationErrorChanged);
    connect(m_contacts, &ContactStore::creatingConversationChanged, this,
            &TelegramSession::creatingConversationChanged);
    connect(m_contacts, &ContactStore::deletingChatsChanged, this, &TelegramSession::deletingChatsChanged);
    connect(m_contacts, &ContactStore::newlyOpenedChatIDChanged, this, &TelegramSession::newlyOpenedChatIDChanged);
    connect(m_contacts, &ContactStore::userReceived, this, &TelegramSession::storeUser);
    connect(m_contacts, &ContactStore::conversationChatReceived, this, &TelegramSession::openConversationChat);
    connect(m_contacts, &ContactStore::chatDeleted, this, &TelegramSession::forgetChat);
}

TelegramSession::~TelegramSession()
{
    shutDown();
}

SendRequest TelegramSession::storeSender()
{
    return [this](const QString &type, const TdObject &fields) { send(type, fields); };
}

const QList<StickerChoice> &TelegramSession::recentStickers() const
{
    return m_stickers->recentStickers();
}

bool TelegramSession::recentStickersLoaded() const
{
    return m_stickers->recentStickersLoaded();
}

std::optional<QString> TelegramSession::stickerError() const
{
    return m_stickers->stickerError();
}

void TelegramSession::loadStickers(const QString &query, const QString &source)
{
    m_stickers->load(query, source);
}

QDate TelegramSession::localToday()
{
    return m_today.date();
}

void TelegramSession::setConnectionState(ConnectionState state)
{
    if (assignChanged(m_connectionState, state))
        Q_EMIT connectionStateChanged();
}

Step TelegramSession::step() const
{
    return m_authorization->step();
}

bool TelegramSession::isReady() const
{
    return m_authorization->isReady();
}

std::optional<QString> TelegramSession::errorMessage() const
{
    return m_authorization->errorMessage();
}

CodeInfo TelegramSession::codeInfo() const
{
    return m_authorization->codeInfo();
}

QString TelegramSession::startupStatus() const
{
    return m_authorization->startupStatus();
}

QString TelegramSession::currentAccountName() const
{
    return m_authorization->currentAccountName();
}

QString TelegramSession::currentAccountPhoneNumber() const
{
    return m_authorization->currentAccountPhoneNumber();
}

void TelegramSession::setSoundManager(const SoundManager *soundManager)
{
    m_announcer->setSoundManager(soundManager);
}

void TelegramSession::setBundle(std::optional<AppBundle> bundle)
{
    m_channel->setBundle(std::move(bundle));
}

void TelegramSession::setRequestObserver(RequestObserver observer)
{
    m_channel->setRequestObserver(std::move(observer));
}

void TelegramSession::setResponseObserver(ResponseObserver observer)
{
    m_channel->setResponseObserver(std::move(observer));
}

void TelegramSession::send(const QString &type, const TdObject &fields)
{
    if (type == "getChatHistory"_L1) {
        if (const auto chat = int64From(fields.value("chat_id"_L1))) {
            appendImageDiagnostic(QString::number(*chat),
                                  u"request history from=%1 limit=%2 local=%3"_s
                                      .arg(int64From(fields.value("from_message_id"_L1)).value_or(0))
                                      .arg(integerFrom(fields.value("limit"_L1)).value_or(0))
                                      .arg(fields.value("only_local"_L1).toBool() ? "true"_L1 : "false"_L1));
        }
    }
    m_channel->send(type, fields);
}

void TelegramSession::handleResponse(const QString &json)
{
    // A lone surrogate cannot be written as UTF-8 without loss.
    QStringEncoder encoder(QStringEncoder::Utf8, QStringEncoder::Flag::Stateless);
    const QByteArray bytes = encoder(json);
    if (encoder.hasError()) {
        m_authorization->setStartupStatus(tr("TDLib returned an unreadable response."));
        return;
    }
    handleResponse(bytes);
}

void TelegramSession::handleResponse(const QByteArray &json)
{
    const std::optional<TdObject> object = m_channel->read(json);
    if (!object) {
        m_authorization->setStartupStatus(tr("TDLib returned an unreadable response."));
        return;
    }
    const QJsonValue type = object->value("@type"_L1);
    m_authorization->noteEvent(type);
    handle(*object, type.isString() ? type.toString() : QString());
}

void TelegramSession::shutDown()
{
    m_channel->shutDown();
}
