// The one entry point for every TDLib answer and update: answers are routed by the
// purpose their request was tagged with, everything else by its type.

#include "session/ContentTexts.h"
#include "session/SoundManager.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::handle(const TdObject &object) {
    const QString type = typeOf(object);
    if (type == "updateConnectionState"_L1) {
        if (typeOf(object.value("state"_L1)) == "connectionStateReady"_L1 && isReady()) {
            requestChats();
            refreshContacts();
        }
        return;
    }
    const QJsonValue purpose = object.value("@extra"_L1).toObject().value("purpose"_L1);
    if (purpose.isString() && routeByPurpose(purpose.toString(), object))
        return;
    if (routeByType(type, object))
        return;
    if (type == "updateAuthorizationState"_L1) {
        handleAuthorizationState(object.value("authorization_state"_L1).toObject());
        return;
    }
    if (type == "error"_L1)
        handleGenericError(object);
}

bool TelegramSession::routeByPurpose(const QString &purpose, const TdObject &object) {
    const QString type = typeOf(object);
    if (purpose == "load_chat_list"_L1) {
        const QString listType = object.value("@extra"_L1).toObject().value("list"_L1).toString();
        if (type == "ok"_L1) {
            loadChatList(listType);
            return true;
        }
        if (type == "error"_L1) {
            // TDLib answers 404 once the whole list is loaded.
            m_loadingChatLists.remove(listType);
            if (integerFrom(object.value("code"_L1)) != 404) {
                const QJsonValue message = object.value("message"_L1);
                setErrorMessage(message.isString() ? message.toString() : u"Unable to refresh chats."_s);
            }
            return true;
        }
        return false;
    }
    if (purpose == "current_user"_L1 && type == "user"_L1) {
        storeCurrentUser(object);
        return true;
    }
    return false;
}

bool TelegramSession::routeByType(const QString &, const TdObject &) {
    return false;
}

void TelegramSession::handleGenericError(const TdObject &error) {
    const QJsonValue message = error.value("message"_L1);
    const QString text = message.isString() ? message.toString() : u"Telegram returned an unknown error."_s;
    setErrorMessage(text);
    // An error before the first authorization state ends the session.
    if (m_step.kind() == Step::Case::Starting)
        setStep(Step::unavailable(text));
    m_soundManager->play(SoundEvent::Failure);
}
