#pragma once

#include "session/ModelTypes.h"
#include "session/SendRequest.h"

#include <QDateTime>
#include <QObject>

// One message a search in a chat found.
struct ChatSearchResult {
    qint64 messageID = 0;
    QDateTime date; // invalid when TDLib gave none

    friend bool operator==(const ChatSearchResult &, const ChatSearchResult &) = default;
};

// A search for words in one chat ("searchChatMessages"): the results, newest
// first, paged as the reader steps past the loaded ones, Telegram's total, and
// which result is shown now (0 is the newest). A newer search, or clearing,
// makes the answers of older ones stale.
class ChatSearchStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(Model::ChatSearchState state READ state NOTIFY changed)
    Q_PROPERTY(QString chatID READ chatID NOTIFY changed)
    Q_PROPERTY(QString query READ query NOTIFY changed)
    // Telegram's count of all matches, at least the number loaded.
    Q_PROPERTY(int totalCount READ totalCount NOTIFY changed)
    // -1 while no result is shown.
    Q_PROPERTY(int currentIndex READ currentIndex NOTIFY changed)
    // The shown result's message, "" when none.
    Q_PROPERTY(QString currentMessageID READ currentMessageID NOTIFY changed)
    Q_PROPERTY(bool hasOlder READ hasOlder NOTIFY changed)
    Q_PROPERTY(bool hasNewer READ hasNewer NOTIFY changed)

public:
    static constexpr int pageSize = 50;

    explicit ChatSearchStore(SendRequest send, QObject *parent = nullptr);

    ChatSearchState state() const { return m_state; }
    QString chatID() const { return m_chatID; }
    QString query() const { return m_query; }
    int totalCount() const { return m_totalCount; }
    int currentIndex() const { return m_currentIndex; }
    QString currentMessageID() const;
    bool hasOlder() const;
    bool hasNewer() const { return m_currentIndex > 0; }
    const QList<ChatSearchResult> &results() const { return m_results; }

    // Searches the chat for the text (trimmed); an empty text clears the search.
    // The newest result becomes the shown one.
    Q_INVOKABLE void search(const QString &chatID, const QString &query);
    // The next older result, asking for the next page when the loaded ones end.
    Q_INVOKABLE void stepOlder();
    Q_INVOKABLE void stepNewer();
    Q_INVOKABLE void clear();

    // Takes an answer to one of its own requests; false for anything else.
    bool handleAnswer(const QString &purpose, const QString &type, const TdObject &object);
    void reset() { clear(); }

Q_SIGNALS:
    void changed();
    // A result became the shown one: the transcript wants the history around it.
    void resultShown(const QString &chatID, const QString &messageID);

private:
    void requestPage(qint64 fromMessageID);
    void setCurrentIndex(int index);

    SendRequest m_send;
    ChatSearchState m_state = ChatSearchState::Idle;
    QString m_chatID;
    QString m_query;
    QList<ChatSearchResult> m_results;
    int m_totalCount = 0;
    int m_currentIndex = -1;
    qint64 m_nextFromMessageID = 0; // 0: no more pages
    int m_generation = 0;           // of the search whose answers count
    bool m_pageLoading = false;
    bool m_stepWhenLoaded = false; // the reader stepped past the loaded results
};
