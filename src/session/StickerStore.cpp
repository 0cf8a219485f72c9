#include "session/StickerStore.h"

#include "session/ChangedValue.h"
#include "session/ContentTexts.h"
#include "session/Emoji.h"

#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype maximumStickers = 600;
constexpr qsizetype maximumStickerSets = 12;

TdObject regularStickers()
{
    return {{"@type"_L1, u"stickerTypeRegular"_s}};
}

QString newRequestID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace

StickerStore::StickerStore(SendRequest send, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
    , m_requestID(newRequestID())
{}

void StickerStore::setRecentStickersLoaded(bool loaded)
{
    if (assignChanged(m_recentStickersLoaded, loaded))
        Q_EMIT recentStickersLoadedChanged();
}

void StickerStore::setStickerError(const std::optional<QString> &error)
{
    if (assignChanged(m_stickerError, error))
        Q_EMIT stickerErrorChanged();
}

void StickerStore::reset()
{
    m_recentStickers.clear();
    Q_EMIT recentStickersChanged();
    setRecentStickersLoaded(false);
    setStickerError(std::nullopt);
    m_pendingStickers.clear();
    m_requestedStickerSets.clear();
    m_requestID = newRequestID();
}

void StickerStore::load(const QString &query, const QString &source)
{
    m_requestID = newRequestID();
    setStickerError(std::nullopt);
    setRecentStickersLoaded(false);
    m_recentStickers.clear();
    Q_EMIT recentStickersChanged();
    m_pendingStickers.clear();
    m_requestedStickerSets.clear();

    const QString trimmed = query.trimmed();
    if (!trimmed.isEmpty()) {
        const bool byEmoji = containsEmoji(trimmed);
        m_send(u"searchStickers"_s,
               {{"sticker_type"_L1, regularStickers()},
                {"emojis"_L1, byEmoji ? trimmed : QString()},
                {"query"_L1, byEmoji ? QString() : trimmed},
                {"input_language_codes"_L1, QJsonArray()},
                {"offset"_L1, 0},
                {"limit"_L1, 100},
                {"@extra"_L1, TdObject{{"purpose"_L1, u"sticker_search"_s}, {"sticker_request"_L1, m_requestID}}}});
        return;
    }
    const bool all = source == "all"_L1;
    if (all || source == "recent"_L1) {
        m_send(u"getRecentStickers"_s,
               {{"is_attached"_L1, false},
                {"@extra"_L1, TdObject{{"purpose"_L1, u"recent_stickers"_s}, {"sticker_request"_L1, m_requestID}}}});
    }
    if (all || source == "installed"_L1) {
        m_send(u"getInstalledStickerSets"_s,
               {{"sticker_type"_L1, regularStickers()}, {"@extra"_L1, TdObject{{"sticker_request"_L1, m_requestID}}}});
    }
    if (all || source == "trending"_L1)
        requestTrendingStickers();
}

void StickerStore::requestTrendingStickers()
{
    m_send(u"getTrendingStickerSets"_s, {{"sticker_type"_L1, regularStickers()},
                                         {"offset"_L1, 0},
                                         {"limit"_L1, maximumStickerSets},
                                         {"@extra"_L1, TdObject{{"sticker_request"_L1, m_requestID}}}});
}

bool StickerStore::handleAnswer(const QString &type, const TdObject &extra, const TdObject &object)
{
    const QJsonValue requestID = extra.value("sticker_request"_L1);
    if (requestID.isUndefined())
        return false;
    const bool current = requestID.toString() == m_requestID;
    if (type == "error"_L1) {
        if (current) {
            setStickerError(tr("Unable to load stickers."));
            setRecentStickersLoaded(true);
        }
        return true;
    }
    if (type != "stickers"_L1 && type != "stickerSet"_L1 && type != "stickerSets"_L1 &&
        type != "trendingStickerSets"_L1)
        return false;
    if (!current)
        return true; // an answer to an abandoned load
    if (type == "stickers"_L1 || type == "stickerSet"_L1)
        prepareStickerChoices(object.value("stickers"_L1).toArray());
    else
        requestStickerSets(object.value("sets"_L1).toArray());
    return true;
}

void StickerStore::requestStickerSets(const QJsonArray &sets)
{
    QJsonArray covers;
    for (const QJsonValue &set : sets) {
        for (const QJsonValue &cover : set.toObject().value("covers"_L1).toArray())
            covers.append(cover);
    }
    // Covers first, so the picker shows something before the full sets arrive.
    if (!covers.isEmpty())
        prepareStickerChoices(covers);
    for (qsizetype i = 0; i < sets.size() && i < maximumStickerSets; ++i) {
        const std::optional<qint64> setID = int64From(sets.at(i).toObject().value("id"_L1));
        if (!setID || m_requestedStickerSets.contains(*setID))
            continue;
        m_requestedStickerSets.insert(*setID);
        m_send(u"getStickerSet"_s,
               {{"set_id"_L1, *setID}, {"@extra"_L1, TdObject{{"sticker_request"_L1, m_requestID}}}});
    }
}

void StickerStore::prepareStickerChoices(const QJsonArray &stickers)
{
    setRecentStickersLoaded(true);
    for (const QJsonValue &value : stickers) {
        if (m_recentStickers.size() >= maximumStickers)
            break;
        const TdObject sticker = value.toObject();
        const TdObject file = sticker.value("sticker"_L1).toObject();
        const std::optional<qint64> id = int64From(sticker.value("id"_L1));
        const std::optional<qint64> fileID = int64From(file.value("id"_L1));
        if (!id || !fileID)
            continue;
        const StickerChoice choice{*id,
                                   *fileID,
                                   completedPath(file).value_or(QString()),
                                   sticker.value("emoji"_L1).toString(),
                                   int(integerFrom(sticker.value("width"_L1)).value_or(0)),
                                   int(integerFrom(sticker.value("height"_L1)).value_or(0)),
                                   stickerFormat(sticker.value("format"_L1))};
        addRecentSticker(choice);
        if (choice.path.isEmpty()) {
            // Shown once its file is here.
            m_pendingStickers[*fileID].append(choice);
            requestDownload(m_send, *fileID);
        }
    }
}

void StickerStore::addRecentSticker(const StickerChoice &choice)
{
    replaceOrAppend(m_recentStickers, choice);
    Q_EMIT recentStickersChanged();
}

void StickerStore::applyDownloadedFile(qint64 fileID, const QString &path)
{
    const QList<StickerChoice> pending = m_pendingStickers.take(fileID);
    for (const StickerChoice &choice : pending) {
        const auto shown = std::find_if(m_recentStickers.begin(), m_recentStickers.end(),
                                        [&choice](const StickerChoice &c) { return c.id == choice.id; });
        if (shown == m_recentStickers.end())
            continue;
        shown->path = path;
        Q_EMIT recentStickersChanged();
    }
}
