#include "session/ChatSearchStore.h"

#include <QJsonArray>

using namespace Qt::StringLiterals;

ChatSearchStore::ChatSearchStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
{}

QString ChatSearchStore::currentMessageID() const
{
    if (m_currentIndex < 0 || m_currentIndex >= m_results.size())
        return {};
    return QString::number(m_results.at(m_currentIndex).messageID);
}

bool ChatSearchStore::hasOlder() const
{
    return m_currentIndex + 1 < m_results.size() || (m_currentIndex >= 0 && m_nextFromMessageID != 0);
}

void ChatSearchStore::search(const QString &chatID, const QString &query)
{
    const QString text = query.trimmed();
    if (text.isEmpty() || !parseInt64(chatID)) {
        clear();
        return;
    }
    if (text == m_query && chatID == m_chatID && m_state != ChatSearchState::Failed)
        return;
    ++m_generation;
    m_chatID = chatID;
    m_query = text;
    m_results.clear();
    m_totalCount = 0;
    m_currentIndex = -1;
    m_nextFromMessageID = 0;
    m_stepWhenLoaded = false;
    m_state = ChatSearchState::Searching;
    requestPage(0);
    Q_EMIT changed();
}

void ChatSearchStore::requestPage(qint64 fromMessageID)
{
    m_pageLoading = true;
    m_send(u"searchChatMessages"_s,
           {{"chat_id"_L1, *parseInt64(m_chatID)},
            {"topic_id"_L1, QJsonValue::Null},
            {"query"_L1, m_query},
            {"sender_id"_L1, QJsonValue::Null},
            {"from_message_id"_L1, fromMessageID},
            {"offset"_L1, 0},
            {"limit"_L1, pageSize},
            {"filter"_L1, QJsonValue::Null},
            {"@extra"_L1, TdObject{{"purpose"_L1, u"chat_search"_s}, {"search"_L1, m_generation}}}});
}

void ChatSearchStore::stepOlder()
{
    if (m_currentIndex + 1 < m_results.size()) {
        setCurrentIndex(m_currentIndex + 1);
    } else if (m_currentIndex >= 0 && m_nextFromMessageID != 0) {
        m_stepWhenLoaded = true;
        if (!m_pageLoading)
            requestPage(m_nextFromMessageID);
    }
}

void ChatSearchStore::stepNewer()
{
    m_stepWhenLoaded = false;
    if (m_currentIndex > 0)
        setCurrentIndex(m_currentIndex - 1);
}

void ChatSearchStore::clear()
{
    const bool wasIdle = m_state == ChatSearchState::Idle && m_query.isEmpty();
    ++m_generation;
    m_state = ChatSearchState::Idle;
    m_chatID.clear();
    m_query.clear();
    m_results.clear();
    m_totalCount = 0;
    m_currentIndex = -1;
    m_nextFromMessageID = 0;
    m_pageLoading = false;
    m_stepWhenLoaded = false;
    if (!wasIdle)
        Q_EMIT changed();
}

void ChatSearchStore::setCurrentIndex(int index)
{
    m_currentIndex = index;
    Q_EMIT changed();
    Q_EMIT resultShown(m_chatID, currentMessageID());
}

bool ChatSearchStore::handleAnswer(const QString &purpose, const QString &type, const TdObject &object)
{
    if (purpose != "chat_search"_L1)
        return false;
    // Answers to a search the reader has since changed or closed change nothing.
    if (integerFrom(object.value("@extra"_L1).toObject().value("search"_L1)) != m_generation ||
        m_state == ChatSearchState::Idle)
        return true;
    m_pageLoading = false;
    const bool firstPage = m_results.isEmpty();
    if (type != "foundChatMessages"_L1) {
        // A later page that fails leaves what was found; a failed first page is the outcome.
        m_stepWhenLoaded = false;
        m_nextFromMessageID = 0;
        if (firstPage)
            m_state = ChatSearchState::Failed;
        Q_EMIT changed();
        return true;
    }
    const qint64 chat = *parseInt64(m_chatID);
    const qsizetype before = m_results.size();
    for (const QJsonValue &value : object.value("messages"_L1).toArray()) {
        const TdObject message = value.toObject();
        const std::optional<qint64> id = int64From(message.value("id"_L1));
        // Messages of another chat, or without an id, cannot be shown.
        if (!id || int64From(message.value("chat_id"_L1)).value_or(chat) != chat)
            continue;
        const bool known = std::any_of(m_results.cbegin(), m_results.cend(),
                                       [&](const ChatSearchResult &result) { return result.messageID == *id; });
        if (known)
            continue;
        const std::optional<qint64> date = integerFrom(message.value("date"_L1));
        m_results.append({*id, date && *date > 0 ? QDateTime::fromSecsSinceEpoch(*date) : QDateTime()});
    }
    const std::optional<qint64> next = int64From(object.value("next_from_message_id"_L1));
    // A page that brought nothing new ends the paging, whatever TDLib says of more.
    m_nextFromMessageID = next && m_results.size() > before ? *next : 0;
    const std::optional<qint64> total = integerFrom(object.value("total_count"_L1));
    m_totalCount = int(std::max<qint64>(m_results.size(), total.value_or(0)));
    if (m_nextFromMessageID == 0)
        m_totalCount = int(m_results.size());
    m_state = m_results.isEmpty() ? ChatSearchState::NoResults : ChatSearchState::Found;
    if (firstPage && !m_results.isEmpty()) {
        setCurrentIndex(0);
    } else if (std::exchange(m_stepWhenLoaded, false) && m_currentIndex + 1 < m_results.size()) {
        setCurrentIndex(m_currentIndex + 1);
    } else {
        Q_EMIT changed();
    }
    return true;
}
