// The chat list: loading TDLib's two lists and keeping them in order.

#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::requestChats() {
    for (const QString &listType : {u"chatListMain"_s, u"chatListArchive"_s}) {
        if (m_loadingChatLists.contains(listType))
            continue;
        m_loadingChatLists.insert(listType);
        send(u"getChats"_s, {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}}, {"limit"_L1, 1000}});
        loadChatList(listType);
    }
}

void TelegramSession::loadChatList(const QString &listType) {
    send(u"loadChats"_s,
         {{"chat_list"_L1, TdObject{{"@type"_L1, listType}}},
          {"limit"_L1, 50},
          {"@extra"_L1, TdObject{{"purpose"_L1, u"load_chat_list"_s}, {"list"_L1, listType}}}});
}
