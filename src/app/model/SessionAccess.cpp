#include "SessionAccess.h"

SessionAccess::SessionAccess(TelegramSession &session, QObject *parent)
    : QObject(parent)
    , m_session(session)
{
    connect(&session, &TelegramSession::stepChanged, this, &SessionAccess::stepChanged);
    connect(&session, &TelegramSession::errorMessageChanged, this, &SessionAccess::errorMessageChanged);
    connect(&session, &TelegramSession::currentAccountNameChanged, this, &SessionAccess::currentAccountNameChanged);
    connect(&session, &TelegramSession::currentAccountPhoneNumberChanged, this,
            &SessionAccess::currentAccountPhoneNumberChanged);
    connect(&session, &TelegramSession::connectionStateChanged, this, &SessionAccess::connectionStateChanged);
    connect(&session, &TelegramSession::deletingChatsChanged, this, &SessionAccess::deletingChatsChanged);
    connect(&session, &TelegramSession::creatingConversationChanged, this, &SessionAccess::creatingConversationChanged);
    connect(&session, &TelegramSession::conversationErrorChanged, this, &SessionAccess::conversationErrorChanged);
    connect(&session, &TelegramSession::newlyOpenedChatIDChanged, this, &SessionAccess::newlyOpenedChatIDChanged);
}
