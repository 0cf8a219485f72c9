#pragma once

#include "Account.h"

#include <QJsonObject>
#include <QString>

#include <functional>
#include <memory>
#include <set>

namespace demo {

class Runtime;

// One TDLib client: the authorization state machine, and once signed in, the
// account and what this client has been told about it so far.
class Client
{
public:
    Client(Runtime &runtime, int id);
    ~Client();

    void start();
    void handle(const QJsonObject &request);
    bool isClosed() const { return m_state == State::Closed; }

private:
    enum class State { WaitParameters, WaitPhone, WaitCode, WaitPassword, Ready, LoggingOut, Closing, Closed };

    // Plumbing.
    void answer(const QJsonObject &request, QJsonObject result);
    void update(QJsonObject update);
    void after(int milliseconds, std::function<void(Client &)> task);
    // A fixed delay in deterministic mode, a random one between the bounds otherwise.
    static int delay(int fixed, int low, int high);
    static int random(int bound);
    void setState(State state);

    // Authorization (Client.cpp).
    bool handleAuthorization(const QString &type, const QJsonObject &request);
    void becomeReady();
    void close(bool logOut, const QJsonObject &request);
    QString rememberedAccountPath() const;

    // Chats, history, users and files (ChatRequests.cpp).
    bool handleChats(const QString &type, const QJsonObject &request);
    void announceChat(DemoChat &chat);
    void chatLastMessageChanged(const DemoChat &chat);
    void chatReadInboxChanged(const DemoChat &chat);
    QJsonObject history(DemoChat &chat, qint64 fromMessageID, int offset, int limit, bool onlyLocal);
    // "foundChatMessages": the chat's messages whose text or caption holds the query, ignoring case.
    QJsonObject searchChat(const DemoChat &chat, const QString &query, qint64 fromMessageID, int limit) const;
    void downloadFile(const QJsonObject &request, int fileID, bool synchronous);
    void finishDownload(int fileID);

    // Sending and changing messages (MessageRequests.cpp).
    bool handleMessages(const QString &type, const QJsonObject &request);
    QJsonObject contentFromInput(const QJsonObject &input, QString *failure);
    DemoMessage &addPending(DemoChat &chat, const QJsonObject &content, qint64 replyTo, qint64 albumID);
    void completeSending(qint64 chatID, qint64 localID);

    // Stickers and contacts (StickerContactRequests.cpp).
    bool handleStickersAndContacts(const QString &type, const QJsonObject &request);

    // The other side (Living.cpp).
    void receiveMessage(DemoChat &chat, qint64 senderID, const QJsonObject &content);
    void afterOutgoingSent(DemoChat &chat, const DemoMessage &sent);
    void botAnswer(qint64 chatID, const QString &prompt);
    void scheduleLife();
    void scheduleChatter();
    void lifeTick();
    void presenceTick();

    // A message on request (Living.cpp).
    void watchIncoming(const QString &path);

    // The network, switched off and on by hand (Network.cpp).
    void watchNetworkSwitch(const QString &path);
    void networkSwitched(bool offline);

    Runtime &m_runtime;
    int m_id = 0;
    State m_state = State::WaitParameters;
    QString m_databaseDirectory;
    QString m_filesDirectory;
    QString m_phone;
    std::unique_ptr<Account> m_account;
    int m_loaded[2] = {0, 0}; // chats of the main and archive lists loaded so far
    std::set<qint64> m_historyFetched;
    bool m_offline = false;
    int m_networkChanges = 0; // a reconnection under way stops when the network changes again
};

} // namespace demo
