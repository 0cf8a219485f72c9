#pragma once

#include "session/ModelTypes.h"
#include "session/SendRequest.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

// The sticker picker's data: recent, installed and trending stickers, and search
// by emoji or keyword. Each load has an identifier of its own; answers to an
// abandoned load change nothing.
class StickerStore : public QObject
{
    Q_OBJECT

public:
    explicit StickerStore(SendRequest send, QObject *parent = nullptr);

    // source: "all", "recent", "installed" or "trending".
    void load(const QString &query, const QString &source);
    // Takes an answer to one of its own loads; false for anything else.
    bool handleAnswer(const QString &type, const TdObject &extra, const TdObject &object);
    // A sticker waiting for its file shows once the file is here.
    void applyDownloadedFile(qint64 fileID, const QString &path);
    // Forgets everything the account asked for; late answers no longer match.
    void reset();

    const QList<StickerChoice> &recentStickers() const { return m_recentStickers; }
    bool recentStickersLoaded() const { return m_recentStickersLoaded; }
    std::optional<QString> stickerError() const { return m_stickerError; }

Q_SIGNALS:
    void recentStickersChanged();
    void recentStickersLoadedChanged();
    void stickerErrorChanged();

private:
    void requestTrendingStickers();
    void requestStickerSets(const QJsonArray &sets);
    void prepareStickerChoices(const QJsonArray &stickers);
    void addRecentSticker(const StickerChoice &choice);
    void setRecentStickersLoaded(bool loaded);
    void setStickerError(const std::optional<QString> &error);

    SendRequest m_send;
    QList<StickerChoice> m_recentStickers;
    bool m_recentStickersLoaded = false;
    std::optional<QString> m_stickerError;
    QString m_requestID;
    QHash<qint64, QList<StickerChoice>> m_pendingStickers;
    QSet<qint64> m_requestedStickerSets;
};
