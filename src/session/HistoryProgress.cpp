#include "session/HistoryProgress.h"

bool HistoryProgress::beginFirstLoad(const QString &chatID)
{
    if (m_firstLoading.contains(chatID))
        return false;
    m_firstLoading.insert(chatID);
    m_firstLoadMessages.insert(chatID, {});
    return true;
}

void HistoryProgress::endFirstLoad(const QString &chatID)
{
    m_firstLoading.remove(chatID);
    m_firstLoadMessages.remove(chatID);
}

bool HistoryProgress::beginOlderPage(const QString &chatID)
{
    if (m_loadingOlder.contains(chatID) || m_exhausted.contains(chatID))
        return false;
    m_expanded.insert(chatID);
    m_loadingOlder.insert(chatID);
    return true;
}

void HistoryProgress::endOlderPage(const QString &chatID, bool reachedStart)
{
    m_loadingOlder.remove(chatID);
    if (reachedStart)
        m_exhausted.insert(chatID);
}

bool HistoryProgress::takeAroundAnswer(const QString &chatID, qint64 messageID)
{
    const auto request = m_aroundRequests.constFind(chatID);
    if (request == m_aroundRequests.cend() || *request != messageID)
        return false;
    m_aroundRequests.erase(request);
    return true;
}

void HistoryProgress::showAround(const QString &chatID)
{
    m_around.insert(chatID);
    // Older pages follow on from the window, and its start is not the chat's.
    m_expanded.insert(chatID);
    m_exhausted.remove(chatID);
}

bool HistoryProgress::leaveAround(const QString &chatID)
{
    m_aroundRequests.remove(chatID);
    if (!m_around.remove(chatID))
        return false;
    m_expanded.remove(chatID);
    m_exhausted.remove(chatID);
    m_loadingOlder.remove(chatID);
    return true;
}

void HistoryProgress::forget(const QString &chatID)
{
    endFirstLoad(chatID);
    m_loadingOlder.remove(chatID);
    m_exhausted.remove(chatID);
    m_expanded.remove(chatID);
    m_around.remove(chatID);
    m_aroundRequests.remove(chatID);
}

void HistoryProgress::reset()
{
    m_firstLoading.clear();
    m_firstLoadMessages.clear();
    m_loadingOlder.clear();
    m_exhausted.clear();
    m_expanded.clear();
    m_around.clear();
    m_aroundRequests.clear();
}
