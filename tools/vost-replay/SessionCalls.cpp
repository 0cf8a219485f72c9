// The session's operations and published state.

#include "JsonForms.h"
#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "session/ChatSearchStore.h"
#include "session/ModelNames.h"
#include "session/TelegramSession.h"
#include "session/UserDefaults.h"

#include <QMetaProperty>

#include <memory>

using namespace Qt::StringLiterals;

namespace {

QString stringArgument(const QJsonArray &args, qsizetype index)
{
    return args.at(index).toString();
}

} // namespace

void registerSessionCalls(ReplayDriver &driver, TelegramSession &session)
{
    driver.addInput(u"raw"_s, [&session](const QJsonValue &text) { session.handleResponse(text.toString()); });
    driver.addInput(u"defaults"_s, [](const QJsonValue &values) {
        const QJsonObject object = values.toObject();
        for (auto it = object.begin(); it != object.end(); ++it)
            UserDefaults::setValue(it.key(), it.value().toVariant());
    });

    driver.addCall(u"start"_s, [&session](const QJsonArray &args) {
        session.start(args.at(0).toInteger(), stringArgument(args, 1));
    });
    driver.addCall(u"submitPhoneNumber"_s,
                   [&session](const QJsonArray &args) { session.submitPhoneNumber(stringArgument(args, 0)); });
    driver.addCall(u"submitVerificationCode"_s,
                   [&session](const QJsonArray &args) { session.submitVerificationCode(stringArgument(args, 0)); });
    driver.addCall(u"submitPassword"_s,
                   [&session](const QJsonArray &args) { session.submitPassword(stringArgument(args, 0)); });
    driver.addCall(u"logOutAndChangeAccount"_s, [&session](const QJsonArray &) { session.logOutAndChangeAccount(); });
    driver.addCall(u"requestChats"_s, [&session](const QJsonArray &) { session.requestChats(); });
    driver.addCall(u"refreshContacts"_s, [&session](const QJsonArray &) { session.refreshContacts(); });
    driver.addCall(u"loadMessages"_s,
                   [&session](const QJsonArray &args) { session.loadMessages(stringArgument(args, 0)); });
    driver.addCall(u"loadOlderMessages"_s, [&session](const QJsonArray &args) {
        session.loadOlderMessages(stringArgument(args, 0), stringArgument(args, 1));
    });
    ChatSearchStore &search = *session.chatSearch();
    driver.addCall(u"searchChat"_s, [&search](const QJsonArray &args) {
        search.search(stringArgument(args, 0), stringArgument(args, 1));
    });
    driver.addCall(u"stepOlderResult"_s, [&search](const QJsonArray &) { search.stepOlder(); });
    driver.addCall(u"stepNewerResult"_s, [&search](const QJsonArray &) { search.stepNewer(); });
    driver.addCall(u"clearSearch"_s, [&search](const QJsonArray &) { search.clear(); });
    driver.addCall(u"loadHistoryAround"_s, [&session](const QJsonArray &args) {
        session.loadHistoryAround(stringArgument(args, 0), stringArgument(args, 1));
    });
    driver.addCall(u"returnToNewest"_s,
                   [&session](const QJsonArray &args) { session.returnToNewest(stringArgument(args, 0)); });
    driver.addCall(u"markMessagesRead"_s, [&session](const QJsonArray &args) {
        session.markMessagesRead(messagesFromJson(args.at(0).toArray()), stringArgument(args, 1));
    });

    driver.addState(u"step"_s, [&session] { return toJson(session.step()); });
    driver.addState(u"isReady"_s, [&session] { return QJsonValue(session.isReady()); });
    driver.addState(u"errorMessage"_s, [&session] { return optionalToJson(session.errorMessage()); });
    driver.addState(u"startupStatus"_s, [&session] { return QJsonValue(session.startupStatus()); });
    driver.addState(u"currentAccountName"_s, [&session] { return QJsonValue(session.currentAccountName()); });
    driver.addState(u"chats"_s, [&session] { return QJsonValue(toJsonArray(session.chats())); });
    // The chats whose rows show someone typing, in list order.
    driver.addState(u"typingChats"_s, [&session] {
        QJsonArray ids;
        for (const Chat &chat : session.chats()) {
            if (chat.isTyping)
                ids.append(chat.id);
        }
        return QJsonValue(ids);
    });
    driver.addState(u"messagesByChat"_s, [&session] {
        QJsonObject byChat;
        const auto &messages = session.messagesByChat();
        for (auto it = messages.begin(); it != messages.end(); ++it)
            byChat.insert(it.key(), toJsonArray(it.value()));
        return QJsonValue(byChat);
    });
    // What each reply's quote says of the message it answers.
    driver.addState(u"replies"_s, [&session] {
        QJsonObject byChat;
        const auto &details = session.messageDetailsByChat();
        for (auto it = details.begin(); it != details.end(); ++it) {
            QJsonArray replies;
            for (const MessageDetails &message : it.value()) {
                if (message.replyToMessageID.isEmpty())
                    continue;
                replies.append(QJsonObject{{"id"_L1, message.messageID},
                                           {"replyTo"_L1, message.replyToMessageID},
                                           {"sender"_L1, message.replyToSender},
                                           {"text"_L1, message.replyToText},
                                           {"missing"_L1, message.replyToMissing}});
            }
            byChat.insert(it.key(), replies);
        }
        return QJsonValue(byChat);
    });
    // Read as the views read it: the state through the published property.
    driver.addState(u"chatSearch"_s, [&search] {
        const QMetaProperty property = search.metaObject()->property(search.metaObject()->indexOfProperty("state"));
        QJsonArray results;
        for (const ChatSearchResult &result : search.results())
            results.append(QJsonObject{
                {"id"_L1, QString::number(result.messageID)},
                {"date"_L1, result.date.isValid() ? QJsonValue(result.date.toSecsSinceEpoch()) : QJsonValue()}});
        return QJsonValue(QJsonObject{{"state"_L1, caseName(property.enumerator(), property.read(&search).toInt())},
                                      {"chatID"_L1, search.chatID()},
                                      {"query"_L1, search.query()},
                                      {"totalCount"_L1, search.totalCount()},
                                      {"currentIndex"_L1, search.currentIndex()},
                                      {"currentMessageID"_L1, search.currentMessageID()},
                                      {"hasOlder"_L1, search.hasOlder()},
                                      {"hasNewer"_L1, search.hasNewer()},
                                      {"results"_L1, results}});
    });
    driver.addState(u"showsHistoryAround"_s, [&session] {
        QJsonArray chats;
        for (const QString &chatID : session.messagesByChat().keys()) {
            if (session.showsHistoryAround(chatID))
                chats.append(chatID);
        }
        return QJsonValue(chats);
    });
    driver.addState(u"currentAccountPhoneNumber"_s,
                    [&session] { return QJsonValue(session.currentAccountPhoneNumber()); });
    // Read as the views read it, through the published property.
    driver.addState(u"connectionState"_s, [&session] {
        const QMetaProperty property =
            session.metaObject()->property(session.metaObject()->indexOfProperty("connectionState"));
        if (!property.isValid() || !property.isEnumType())
            return QJsonValue();
        return QJsonValue(caseName(property.enumerator(), property.read(&session).toInt()));
    });
    // How often the property announced a change.
    auto changes = std::make_shared<int>(0);
    QObject::connect(&session, &TelegramSession::connectionStateChanged, &driver, [changes] { ++*changes; });
    driver.addState(u"connectionStateChanges"_s, [changes] { return QJsonValue(*changes); });
}
