// The session's outgoing actions, stickers, contacts and sounds.

#include "JsonForms.h"
#include "ReplayDriver.h"
#include "ReplayModules.h"

#include "session/SoundManager.h"
#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

namespace {

QString text(const QJsonArray &args, qsizetype index)
{
    // Identifiers may be given as numbers or as text.
    const QJsonValue value = args.at(index);
    return value.isDouble() ? QString::number(value.toInteger()) : value.toString();
}

template<typename T> QJsonArray listToJson(const T &values)
{
    QJsonArray array;
    for (const auto &value : values)
        array.append(toJson(value));
    return array;
}

} // namespace

void registerActionCalls(ReplayDriver &driver, TelegramSession &session)
{
    const auto call = [&driver](const QString &name, ReplayDriver::Call function) { driver.addCall(name, function); };
    call(u"sendText"_s, [&session](const QJsonArray &a) { session.sendText(text(a, 0), text(a, 1), text(a, 2)); });
    call(u"editText"_s, [&session](const QJsonArray &a) { session.editText(text(a, 0), text(a, 1), text(a, 2)); });
    call(u"deleteMessage"_s, [&session](const QJsonArray &a) { session.deleteMessage(text(a, 0), text(a, 1)); });
    call(u"forwardMessage"_s,
         [&session](const QJsonArray &a) { session.forwardMessage(text(a, 0), text(a, 1), text(a, 2)); });
    call(u"sendAttachments"_s, [&session](const QJsonArray &a) {
        session.sendAttachments(attachmentsFromJson(a.at(0).toArray()), text(a, 1), text(a, 2));
    });
    call(u"sendPhoto"_s, [&session](const QJsonArray &a) { session.sendPhoto(text(a, 0), text(a, 1), text(a, 2)); });
    call(u"sendDocument"_s,
         [&session](const QJsonArray &a) { session.sendDocument(text(a, 0), text(a, 1), text(a, 2)); });
    call(u"setReaction"_s, [&session](const QJsonArray &a) {
        session.setReaction(text(a, 0), a.at(1).toBool(), text(a, 2), text(a, 3));
    });
    call(u"loadStickers"_s, [&session](const QJsonArray &a) { session.loadStickers(text(a, 0), text(a, 1)); });
    call(u"sendSticker"_s,
         [&session](const QJsonArray &a) { session.sendSticker(stickerFromJson(a.at(0).toObject()), text(a, 1)); });
    call(u"searchContacts"_s, [&session](const QJsonArray &a) { session.searchContacts(text(a, 0)); });
    call(u"createContact"_s,
         [&session](const QJsonArray &a) { session.createContact(text(a, 0), text(a, 1), text(a, 2), text(a, 3)); });
    call(u"openUsername"_s, [&session](const QJsonArray &a) { session.openUsername(text(a, 0)); });
    call(u"beginConversation"_s,
         [&driver, &session](const QJsonArray &) { driver.printResult(session.beginConversation()); });
    call(u"requestPrivateChat"_s, [&session](const QJsonArray &a) {
        session.requestPrivateChat(text(a, 0).toLongLong(), text(a, 1), a.at(2).toBool());
    });
    call(u"deleteChat"_s, [&session](const QJsonArray &a) { session.deleteChat(text(a, 0), a.at(1).toBool()); });
    call(u"deleteContact"_s, [&session](const QJsonArray &a) { session.deleteContact(text(a, 0).toLongLong()); });
    // A sound as the preferences preview it: event number and pack, or the user's pack.
    call(u"play"_s, [](const QJsonArray &a) {
        const auto event = static_cast<SoundEvent>(std::clamp(a.at(0).toInt(), 0, 4));
        SoundManager::shared().play(event, soundPackFromRawValue(a.at(1).toString()));
    });

    driver.addState(u"recentStickers"_s, [&session] { return QJsonValue(listToJson(session.recentStickers())); });
    driver.addState(u"recentStickerCount"_s, [&session] { return QJsonValue(session.recentStickers().size()); });
    driver.addState(u"recentStickersLoaded"_s, [&session] { return QJsonValue(session.recentStickersLoaded()); });
    driver.addState(u"stickerError"_s, [&session] { return optionalToJson(session.stickerError()); });
    driver.addState(u"contacts"_s, [&session] { return QJsonValue(listToJson(session.contacts())); });
    driver.addState(u"contactResults"_s, [&session] { return QJsonValue(listToJson(session.contactResults())); });
    driver.addState(u"conversationError"_s, [&session] { return optionalToJson(session.conversationError()); });
    driver.addState(u"creatingConversation"_s, [&session] { return QJsonValue(session.creatingConversation()); });
    driver.addState(u"deletingChats"_s, [&session] {
        QStringList ids = session.deletingChats().values();
        ids.sort();
        return QJsonValue(QJsonArray::fromStringList(ids));
    });
    driver.addState(u"newlyOpenedChatID"_s, [&session] { return optionalToJson(session.newlyOpenedChatID()); });
}
