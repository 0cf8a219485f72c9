#pragma once

#include <QHash>
#include <QSet>
#include <QString>

// Where each chat's history stands: its first load and the messages it has so far,
// an older page on its way, the start of the chat reached, the history grown past
// its first page, and a window around a message a search found (with the message
// last asked for).
class HistoryProgress
{
public:
    // The first load. begin is false while one is on its way.
    bool beginFirstLoad(const QString &chatID);
    bool isFirstLoading(const QString &chatID) const { return m_firstLoading.contains(chatID); }
    // The messages the first load has so far.
    QSet<qint64> &firstLoadMessages(const QString &chatID) { return m_firstLoadMessages[chatID]; }
    qsizetype firstLoadCount(const QString &chatID) const { return m_firstLoadMessages.value(chatID).size(); }
    void endFirstLoad(const QString &chatID);

    // Older pages. begin is false while one is on its way or the start is reached.
    bool beginOlderPage(const QString &chatID);
    void endOlderPage(const QString &chatID, bool reachedStart);
    bool isLoadingOlder(const QString &chatID) const { return m_loadingOlder.contains(chatID); }
    bool isExhausted(const QString &chatID) const { return m_exhausted.contains(chatID); }
    // Grown past its first page (by older pages or a window): kept whole.
    bool isExpanded(const QString &chatID) const { return m_expanded.contains(chatID); }

    // A window around a message. Only the answer for the message last asked for counts.
    void askAround(const QString &chatID, qint64 messageID) { m_aroundRequests.insert(chatID, messageID); }
    bool takeAroundAnswer(const QString &chatID, qint64 messageID);
    void showAround(const QString &chatID);
    // Back to the newest messages; false when the chat showed no window.
    bool leaveAround(const QString &chatID);
    bool showsAround(const QString &chatID) const { return m_around.contains(chatID); }

    void forget(const QString &chatID);
    void reset();

private:
    QSet<QString> m_firstLoading;
    QHash<QString, QSet<qint64>> m_firstLoadMessages;
    QSet<QString> m_loadingOlder;
    QSet<QString> m_exhausted;
    QSet<QString> m_expanded;
    QSet<QString> m_around;
    QHash<QString, qint64> m_aroundRequests;
};
