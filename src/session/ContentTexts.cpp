#include "session/ContentTexts.h"

#include "session/MessageDetails.h"

#include <QCoreApplication>

#include <algorithm>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

QString textOr(const QJsonValue &value, const QString &fallback)
{
    return value.isString() ? value.toString() : fallback;
}

} // namespace

std::optional<QString> caption(const TdObject &content)
{
    const QJsonValue text = content.value("caption"_L1).toObject().value("text"_L1);
    if (!text.isString() || text.toString().isEmpty())
        return std::nullopt;
    return text.toString();
}

namespace {

// Each kind of content: how a message of it reads (its caption, where it can
// have one, stands in for the text) and how the chat list previews it (kinds
// without a preview of their own show "Message"), marked for the catalogs.
struct ContentKind {
    QLatin1String type;
    const char *text;
    const char *preview;
    bool hasCaption;
};

constexpr ContentKind contentKinds[] = {
    {"messagePhoto"_L1, QT_TRANSLATE_NOOP("ContentTexts", "📷 Photo"), QT_TRANSLATE_NOOP("ContentTexts", "Photo"), true},
    {"messageVideo"_L1, QT_TRANSLATE_NOOP("ContentTexts", "🎬 Video"), QT_TRANSLATE_NOOP("ContentTexts", "Video"), true},
    {"messageVoiceNote"_L1, QT_TRANSLATE_NOOP("ContentTexts", "🎤 Voice message"),
     QT_TRANSLATE_NOOP("ContentTexts", "Voice message"), false},
    {"messageVideoNote"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Video message"),
     QT_TRANSLATE_NOOP("ContentTexts", "Video message"), false},
    {"messageSticker"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Sticker"), QT_TRANSLATE_NOOP("ContentTexts", "Sticker"),
     false},
    {"messageAnimation"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Animation"),
     QT_TRANSLATE_NOOP("ContentTexts", "Animation"), true},
    {"messageDocument"_L1, QT_TRANSLATE_NOOP("ContentTexts", "📎 Document"),
     QT_TRANSLATE_NOOP("ContentTexts", "Document"), true},
    {"messageAudio"_L1, QT_TRANSLATE_NOOP("ContentTexts", "🎵 Audio"), QT_TRANSLATE_NOOP("ContentTexts", "Audio"), true},
    {"messageCall"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Call"), QT_TRANSLATE_NOOP("ContentTexts", "Call"), false},
    {"messageLocation"_L1, QT_TRANSLATE_NOOP("ContentTexts", "📍 Location"), nullptr, false},
    {"messageContact"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Contact"), nullptr, false},
    {"messagePoll"_L1, QT_TRANSLATE_NOOP("ContentTexts", "Poll"), nullptr, false},
};

const ContentKind *contentKind(const QString &type)
{
    for (const ContentKind &kind : contentKinds) {
        if (type == kind.type)
            return &kind;
    }
    return nullptr;
}

// The text of a text message or an animated emoji; nothing for other kinds.
std::optional<QString> typedText(const QString &type, const TdObject &content)
{
    if (type == "messageText"_L1)
        return textOr(content.value("text"_L1).toObject().value("text"_L1),
                      QCoreApplication::translate("ContentTexts", "Message"));
    if (type == "messageAnimatedEmoji"_L1)
        return textOr(content.value("emoji"_L1), QCoreApplication::translate("ContentTexts", "Emoji"));
    return std::nullopt;
}

} // namespace

QString messageText(const TdObject &content)
{
    const QString type = typeOf(content);
    if (type.isEmpty())
        return QCoreApplication::translate("ContentTexts", "Message");
    if (std::optional<QString> text = typedText(type, content))
        return *text;
    const ContentKind *kind = contentKind(type);
    if (!kind)
        return QCoreApplication::translate("ContentTexts", "Unsupported message");
    const QString text = QCoreApplication::translate("ContentTexts", kind->text);
    return kind->hasCaption ? caption(content).value_or(text) : text;
}

QString veiledText(const QString &text, const TextEntities &entities)
{
    std::vector<bool> hidden(size_t(text.size()), false);
    for (const TextEntity &entity : entities) {
        if (entity.type != TextEntity::Type::Spoiler || entity.offset < 0 || entity.length <= 0)
            continue;
        const qsizetype end = std::min<qsizetype>(qsizetype(entity.offset) + entity.length, text.size());
        for (qsizetype at = entity.offset; at < end; ++at)
            hidden[size_t(at)] = true;
    }
    // A character outside the basic plane is veiled whole, even when a spoiler
    // covers only half of it, and shows as one "▒".
    QString shown;
    shown.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const bool pair = text.at(at).isHighSurrogate() && at + 1 < text.size() && text.at(at + 1).isLowSurrogate();
        const qsizetype width = pair ? 2 : 1;
        const bool veiled = hidden[size_t(at)] || (pair && hidden[size_t(at + 1)]);
        if (veiled && !text.at(at).isSpace())
            shown += u'▒';
        else
            shown += text.mid(at, width);
        at += width;
    }
    return shown;
}

QString veiledMessageText(const TdObject &content)
{
    const QString text = messageText(content);
    const QString type = typeOf(content);
    if (type == "messageText"_L1) {
        const TdObject formatted = content.value("text"_L1).toObject();
        if (formatted.value("text"_L1).toString() == text)
            return veiledText(text, textEntities(formatted));
    } else if (const std::optional<QString> shown = caption(content); shown && *shown == text) {
        return veiledText(text, textEntities(content.value("caption"_L1).toObject()));
    }
    return text;
}

QString previewText(const std::optional<TdObject> &message)
{
    if (!message || !message->value("content"_L1).isObject())
        return QCoreApplication::translate("ContentTexts", "No messages yet");
    const TdObject content = message->value("content"_L1).toObject();
    const QString type = typeOf(content);
    if (type == "messageText"_L1 && content.value("text"_L1).toObject().value("text"_L1).isString())
        return veiledMessageText(content);
    if (std::optional<QString> text = typedText(type, content))
        return *text;
    const ContentKind *kind = contentKind(type);
    return kind && kind->preview ? QCoreApplication::translate("ContentTexts", kind->preview)
                                 : QCoreApplication::translate("ContentTexts", "Message");
}

QString draftText(const QJsonValue &draft)
{
    const TdObject object = draft.toObject();
    const TdObject input = object.value("input_message_text"_L1).toObject();
    if (typeOf(input) == "inputMessageText"_L1)
        return input.value("text"_L1).toObject().value("text"_L1).toString();
    // TDLib 1.8.67 keeps the draft's text under "content".
    const TdObject content = object.value("content"_L1).toObject();
    if (typeOf(content) == "draftMessageContentText"_L1)
        return content.value("text"_L1).toObject().value("text"_L1).toString();
    return {};
}

QString chatSubtitle(const QJsonValue &chatType)
{
    const QString type = typeOf(chatType);
    if (type == "chatTypePrivate"_L1)
        return QCoreApplication::translate("ContentTexts", "Private conversation");
    if (type == "chatTypeBasicGroup"_L1)
        return QCoreApplication::translate("ContentTexts", "Group");
    if (type == "chatTypeSupergroup"_L1)
        return QCoreApplication::translate("ContentTexts", "Group or channel");
    if (type == "chatTypeSecret"_L1)
        return QCoreApplication::translate("ContentTexts", "Secret chat");
    return u"Telegram"_s;
}

QString fullName(const TdObject &user)
{
    const QString first = user.value("first_name"_L1).toString();
    const QString last = user.value("last_name"_L1).toString();
    if (first.isEmpty() || last.isEmpty())
        return first.isEmpty() ? last : first;
    return first + u' ' + last;
}

StickerFormat stickerFormat(const QJsonValue &format)
{
    const QString type = typeOf(format);
    if (type == "stickerFormatTgs"_L1)
        return StickerFormat::Animated;
    if (type == "stickerFormatWebm"_L1)
        return StickerFormat::Video;
    return StickerFormat::Webp;
}

QList<MessageReaction> messageReactions(const TdObject &message)
{
    const QJsonValue container = message.value("interaction_info"_L1).toObject().value("reactions"_L1);
    const QJsonValue list = container.toObject().value("reactions"_L1);
    if (!container.isObject() || !list.isArray())
        return {};
    QList<MessageReaction> reactions;
    for (const QJsonValue &element : list.toArray()) {
        const TdObject reaction = element.toObject();
        const QJsonValue type = reaction.value("type"_L1);
        const QJsonValue emoji = type.toObject().value("emoji"_L1);
        if (!type.isObject() || typeOf(type) != "reactionTypeEmoji"_L1 || !emoji.isString())
            continue;
        const QJsonValue chosen = reaction.value("is_chosen"_L1);
        reactions.append({emoji.toString(), int(integerFrom(reaction.value("total_count"_L1)).value_or(0)),
                          chosen.isBool() && chosen.toBool()});
    }
    return reactions;
}

const MediaPlace *mediaPlace(const QString &contentType)
{
    static constexpr MediaPlace places[] = {
        {"messageVideo"_L1, "video"_L1, "video"_L1, MessageMediaKind::Video},
        {"messageAnimation"_L1, "animation"_L1, "animation"_L1, MessageMediaKind::Animation},
        {"messageVideoNote"_L1, "video_note"_L1, "video"_L1, std::nullopt},
        {"messageVoiceNote"_L1, "voice_note"_L1, "voice"_L1, MessageMediaKind::Voice},
        {"messageAudio"_L1, "audio"_L1, "audio"_L1, MessageMediaKind::Audio},
        {"messageDocument"_L1, "document"_L1, "document"_L1, std::nullopt},
        {"messageSticker"_L1, "sticker"_L1, "sticker"_L1, MessageMediaKind::Sticker},
    };
    for (const MediaPlace &place : places) {
        if (place.type == contentType)
            return &place;
    }
    return nullptr;
}

TdObject largestPhotoSize(const QJsonArray &sizes)
{
    std::optional<TdObject> best;
    qint64 bestArea = -1;
    for (const QJsonValue &value : sizes) {
        const TdObject size = value.toObject();
        const TdObject file = size.value("photo"_L1).toObject();
        const QJsonValue local = file.value("local"_L1);
        const bool usable =
            completedPath(file) || !local.isObject() || local.toObject().value("can_be_downloaded"_L1).toBool();
        if (!usable)
            continue;
        const qint64 area =
            integerFrom(size.value("width"_L1)).value_or(0) * integerFrom(size.value("height"_L1)).value_or(0);
        if (area > bestArea) {
            bestArea = area;
            best = size;
        }
    }
    return best.value_or(TdObject());
}

bool isImageDocument(const TdObject &document)
{
    if (document.value("mime_type"_L1).toString().toLower().startsWith("image/"_L1))
        return true;
    const QString fileName = document.value("file_name"_L1).toString().toLower();
    for (const auto extension : {".jpg"_L1, ".jpeg"_L1, ".png"_L1, ".gif"_L1, ".webp"_L1, ".heic"_L1, ".heif"_L1,
                                 ".tif"_L1, ".tiff"_L1, ".bmp"_L1}) {
        if (fileName.endsWith(extension))
            return true;
    }
    return false;
}

std::optional<QString> completedPath(const TdObject &file)
{
    const TdObject local = file.value("local"_L1).toObject();
    if (!local.value("is_downloading_completed"_L1).toBool())
        return std::nullopt;
    QString path = local.value("path"_L1).toString();
    if (path.isEmpty())
        return std::nullopt;
    return path;
}
