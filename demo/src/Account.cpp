#include "Account.h"
#include "Json.h"

using namespace Qt::StringLiterals;

namespace demo {

namespace {
// The value under key, or null when the map has none.
template<typename Map, typename Key> auto valueIn(Map &map, const Key &key) -> decltype(&map.find(key)->second)
{
    const auto it = map.find(key);
    return it == map.end() ? nullptr : &it->second;
}
} // namespace

DemoChat *Account::chat(qint64 chatID)
{
    return valueIn(chats, chatID);
}

const DemoChat *Account::chat(qint64 chatID) const
{
    return valueIn(chats, chatID);
}

DemoUser *Account::user(qint64 userID)
{
    return valueIn(users, userID);
}

const DemoUser *Account::user(qint64 userID) const
{
    return valueIn(users, userID);
}

DemoFile *Account::file(int fileID)
{
    return valueIn(files, fileID);
}

DemoMessage *Account::message(qint64 chatID, qint64 messageID)
{
    DemoChat *owner = chat(chatID);
    if (!owner)
        return nullptr;
    return valueIn(owner->messages, messageID);
}

const DemoSticker *Account::sticker(qint64 stickerID) const
{
    return valueIn(stickers, stickerID);
}

const DemoSticker *Account::stickerByFile(int fileID) const
{
    for (const auto &[id, s] : stickers)
        if (s.fileID == fileID)
            return &s;
    return nullptr;
}

const DemoStickerSet *Account::stickerSet(qint64 setID) const
{
    for (const DemoStickerSet &set : stickerSets)
        if (set.id == setID)
            return &set;
    return nullptr;
}

DemoChat *Account::privateChatWith(qint64 userID)
{
    DemoChat *found = chat(userID);
    return found && found->kind == ChatKind::Private ? found : nullptr;
}

qint64 Account::nextServerMessageID(DemoChat &chat) const
{
    qint64 last = 0;
    for (auto it = chat.messages.rbegin(); it != chat.messages.rend(); ++it)
        if (!it->second.pending) {
            last = it->first;
            break;
        }
    // Server message ids are multiples of 2^20; yet unsent ones sit in between.
    qint64 next = ((last >> 20) + 1) << 20;
    while (chat.messages.count(next))
        next += qint64(1) << 20;
    return next;
}

int Account::newFile(FileRecipe recipe, const QString &folder, const QString &name, int width, int height, int seed,
                     qint64 size)
{
    DemoFile file;
    file.id = ++m_lastFileID;
    file.recipe = recipe;
    file.folder = folder;
    file.name = name;
    file.width = width;
    file.height = height;
    file.seed = seed;
    file.size = size;
    files[file.id] = file;
    return file.id;
}

QJsonObject Account::textContent(const QString &text) const
{
    return object("messageText", {{"text", formattedText(text, urlEntities(text))},
                                  {"link_preview", QJsonValue::Null},
                                  {"link_preview_options", QJsonValue::Null}});
}

QJsonObject Account::photoContent(int seed, int width, int height, const QString &caption)
{
    QJsonArray sizes;
    const struct {
        const char *type;
        int side;
    } steps[] = {{"m", 320}, {"x", 800}, {"y", 1280}};
    for (const auto &step : steps) {
        const int longest = std::max(width, height);
        const double scale = longest > step.side ? double(step.side) / longest : 1.0;
        const int w = std::max(1, int(width * scale));
        const int h = std::max(1, int(height * scale));
        const QString name = u"photo_%1_%2.jpg"_s.arg(seed).arg(QLatin1StringView(step.type));
        const int fileID = newFile(FileRecipe::Photo, u"photos"_s, name, w, h, seed, qint64(w) * h / 9 + 600);
        sizes.append(object("photoSize", {{"type", QString::fromLatin1(step.type)},
                                          {"photo", fileRef(fileID)},
                                          {"width", w},
                                          {"height", h},
                                          {"progressive_sizes", QJsonArray{}}}));
        if (longest <= step.side)
            break;
    }
    return object(
        "messagePhoto",
        {{"photo", object("photo", {{"has_stickers", false}, {"minithumbnail", QJsonValue::Null}, {"sizes", sizes}})},
         {"video", QJsonValue::Null},
         {"caption", formattedText(caption, urlEntities(caption))},
         {"show_caption_above_media", false},
         {"has_spoiler", false},
         {"is_secret", false}});
}

QJsonObject Account::stickerContent(qint64 stickerID) const
{
    return object("messageSticker", {{"sticker", stickerJson(stickerID)}, {"is_premium", false}});
}

} // namespace demo
