#include "session/MessageDetails.h"

#include "session/ContentTexts.h"

using namespace Qt::StringLiterals;
using Kind = MessageContent::Kind;

namespace {

Kind kindOf(const TdObject &content)
{
    static const QHash<QString, Kind> kinds{
        {u"messageText"_s, Kind::Text},           {u"messageAnimatedEmoji"_s, Kind::Text},
        {u"messagePhoto"_s, Kind::Photo},         {u"messageVideo"_s, Kind::Video},
        {u"messageAnimation"_s, Kind::Animation}, {u"messageVoiceNote"_s, Kind::VoiceNote},
        {u"messageVideoNote"_s, Kind::VideoNote}, {u"messageAudio"_s, Kind::Audio},
        {u"messageDocument"_s, Kind::Document},   {u"messageSticker"_s, Kind::Sticker},
        {u"messageLocation"_s, Kind::Location},   {u"messageVenue"_s, Kind::Venue},
        {u"messageContact"_s, Kind::Contact},     {u"messagePoll"_s, Kind::Poll},
        {u"messageCall"_s, Kind::Call},           {u"messageDice"_s, Kind::Dice},
    };
    const Kind kind = kinds.value(typeOf(content), Kind::Other);
    // A picture sent as a file is shown as a photo.
    if (kind == Kind::Document && isImageDocument(content.value("document"_L1).toObject()))
        return Kind::Photo;
    return kind;
}

int intOf(const TdObject &object, const char *key)
{
    return int(std::clamp<qint64>(integerFrom(object.value(QLatin1StringView(key))).value_or(0), 0, INT_MAX));
}

QString stringOf(const TdObject &object, const char *key)
{
    return object.value(QLatin1StringView(key)).toString();
}

// The file and the size fields of whatever media the content holds.
void readFile(MessageDetails &details, const TdObject &file)
{
    details.fileID = int64From(file.value("id"_L1)).value_or(0);
    const qint64 size = int64From(file.value("size"_L1)).value_or(0);
    details.fileSize = size > 0 ? size : int64From(file.value("expected_size"_L1)).value_or(0);
}

QByteArray minithumbnailOf(const TdObject &media)
{
    // TDLib writes bytes as base64 in its JSON.
    const QJsonValue data = media.value("minithumbnail"_L1).toObject().value("data"_L1);
    return data.isString() ? QByteArray::fromBase64(data.toString().toLatin1()) : QByteArray();
}

void readMedia(MessageDetails &details, const TdObject &content)
{
    const QString type = typeOf(content);
    TdObject media;
    if (type == "messagePhoto"_L1) {
        media = content.value("photo"_L1).toObject();
        const TdObject size = largestPhotoSize(media.value("sizes"_L1).toArray());
        readFile(details, size.value("photo"_L1).toObject());
        details.width = intOf(size, "width");
        details.height = intOf(size, "height");
    } else {
        const MediaPlace *place = mediaPlace(type);
        if (!place)
            return;
        media = content.value(place->mediaKey).toObject();
        readFile(details, media.value(place->fileKey).toObject());
        // A video note is a square of one side.
        const bool square = type == "messageVideoNote"_L1;
        details.width = intOf(media, square ? "length" : "width");
        details.height = intOf(media, square ? "length" : "height");
        if (type == "messageAudio"_L1) {
            details.title = stringOf(media, "title");
            details.performer = stringOf(media, "performer");
        } else if (type == "messageSticker"_L1) {
            return;
        }
    }
    details.duration = intOf(media, "duration");
    details.fileName = stringOf(media, "file_name");
    details.mimeType = stringOf(media, "mime_type");
    details.minithumbnail = minithumbnailOf(media);
}

void readCard(MessageDetails &details, const TdObject &content)
{
    switch (details.kind) {
    case Kind::Location:
    case Kind::Venue: {
        const TdObject venue = content.value("venue"_L1).toObject();
        const TdObject location = (details.kind == Kind::Venue ? venue : content).value("location"_L1).toObject();
        details.latitude = location.value("latitude"_L1).toDouble();
        details.longitude = location.value("longitude"_L1).toDouble();
        details.placeName = stringOf(venue, "title");
        details.address = stringOf(venue, "address");
        break;
    }
    case Kind::Contact: {
        const TdObject contact = content.value("contact"_L1).toObject();
        details.contactName = fullName(contact);
        details.contactPhone = stringOf(contact, "phone_number");
        details.contactUserID = int64From(contact.value("user_id"_L1)).value_or(0);
        break;
    }
    case Kind::Poll: {
        const TdObject poll = content.value("poll"_L1).toObject();
        details.pollQuestion = poll.value("question"_L1).toObject().value("text"_L1).toString();
        details.pollVoterCount = intOf(poll, "total_voter_count");
        details.pollIsClosed = poll.value("is_closed"_L1).toBool();
        details.pollIsAnonymous = poll.value("is_anonymous"_L1).toBool();
        details.pollIsQuiz = typeOf(poll.value("type"_L1)) == "pollTypeQuiz"_L1;
        for (const QJsonValue &value : poll.value("options"_L1).toArray()) {
            const TdObject option = value.toObject();
            details.pollChoices.append({option.value("text"_L1).toObject().value("text"_L1).toString(),
                                        intOf(option, "voter_count"), std::min(intOf(option, "vote_percentage"), 100),
                                        option.value("is_chosen"_L1).toBool()});
        }
        break;
    }
    case Kind::Call: {
        details.callIsVideo = content.value("is_video"_L1).toBool();
        details.duration = intOf(content, "duration");
        const QString reason = typeOf(content.value("discard_reason"_L1));
        details.callEnd = reason == "callDiscardReasonMissed"_L1         ? MessageContent::CallEnd::Missed
                          : reason == "callDiscardReasonDeclined"_L1     ? MessageContent::CallEnd::Declined
                          : reason == "callDiscardReasonDisconnected"_L1 ? MessageContent::CallEnd::Disconnected
                                                                         : MessageContent::CallEnd::Ended;
        break;
    }
    case Kind::Dice:
        details.diceEmoji = stringOf(content, "emoji");
        details.diceValue = intOf(content, "value");
        break;
    default:
        break;
    }
}

QString senderName(const TdObject &message, const MessageDetailsContext &context)
{
    const TdObject sender = message.value("sender_id"_L1).toObject();
    if (const auto user = int64From(sender.value("user_id"_L1)); user && context.userName)
        return context.userName(*user);
    if (const auto chat = int64From(sender.value("chat_id"_L1)); chat && context.chatTitle)
        return context.chatTitle(*chat);
    return {};
}

QString originName(const TdObject &origin, const MessageDetailsContext &context)
{
    const QString type = typeOf(origin);
    if (type == "messageOriginUser"_L1 && context.userName)
        return context.userName(int64From(origin.value("sender_user_id"_L1)).value_or(0));
    if (type == "messageOriginHiddenUser"_L1)
        return stringOf(origin, "sender_name");
    if ((type == "messageOriginChat"_L1 || type == "messageOriginChannel"_L1) && context.chatTitle) {
        const QString title = context.chatTitle(
            int64From(origin.value(type == "messageOriginChat"_L1 ? "sender_chat_id"_L1 : "chat_id"_L1)).value_or(0));
        const QString signature = stringOf(origin, "author_signature");
        return signature.isEmpty() || title.isEmpty() ? title : u"%1 (%2)"_s.arg(title, signature);
    }
    return {};
}

void readReply(MessageDetails &details, const TdObject &message, const MessageDetailsContext &context)
{
    const TdObject reply = message.value("reply_to"_L1).toObject();
    if (typeOf(reply) != "messageReplyToMessage"_L1)
        return;
    const std::optional<qint64> id = int64From(reply.value("message_id"_L1));
    if (!id || *id == 0)
        return;
    details.replyToMessageID = QString::number(*id);
    const TdObject quoted = reply.value("quote"_L1).toObject().value("text"_L1).toObject();
    const QString quote = veiledText(quoted.value("text"_L1).toString(), textEntities(quoted));
    if (const TdObject *replied = context.storedMessage ? context.storedMessage(*id) : nullptr) {
        details.replyToIsOutgoing = replied->value("is_outgoing"_L1).toBool();
        if (!details.replyToIsOutgoing)
            details.replyToSender = senderName(*replied, context);
        details.replyToText = veiledMessageText(replied->value("content"_L1).toObject());
    } else {
        // A message of another chat, or one not loaded: what TDLib says of it.
        details.replyToSender = originName(reply.value("origin"_L1).toObject(), context);
        if (reply.value("content"_L1).isObject())
            details.replyToText = veiledMessageText(reply.value("content"_L1).toObject());
        else if (context.missingMessage && context.missingMessage(*id))
            details.replyToMissing = true;
    }
    if (!quote.isEmpty())
        details.replyToText = quote;
}

} // namespace

TextEntities textEntities(const TdObject &formattedText)
{
    using Type = TextEntity::Type;
    static const QHash<QString, Type> types{
        {u"textEntityTypeBold"_s, Type::Bold},
        {u"textEntityTypeItalic"_s, Type::Italic},
        {u"textEntityTypeUnderline"_s, Type::Underline},
        {u"textEntityTypeStrikethrough"_s, Type::Strikethrough},
        {u"textEntityTypeSpoiler"_s, Type::Spoiler},
        {u"textEntityTypeCode"_s, Type::Code},
        {u"textEntityTypePre"_s, Type::Pre},
        {u"textEntityTypePreCode"_s, Type::Pre},
        {u"textEntityTypeTextUrl"_s, Type::TextUrl},
        {u"textEntityTypeUrl"_s, Type::Url},
        {u"textEntityTypeEmailAddress"_s, Type::EmailAddress},
        {u"textEntityTypeMention"_s, Type::Mention},
        {u"textEntityTypeHashtag"_s, Type::Hashtag},
        {u"textEntityTypeMentionName"_s, Type::MentionName},
        {u"textEntityTypeBlockQuote"_s, Type::BlockQuote},
        {u"textEntityTypeExpandableBlockQuote"_s, Type::BlockQuote},
    };
    TextEntities entities;
    for (const QJsonValue &value : formattedText.value("entities"_L1).toArray()) {
        const TdObject entity = value.toObject();
        const TdObject type = entity.value("type"_L1).toObject();
        const auto found = types.constFind(typeOf(type));
        const std::optional<qint64> offset = integerFrom(entity.value("offset"_L1));
        const std::optional<qint64> length = integerFrom(entity.value("length"_L1));
        if (found == types.cend() || !offset || !length || *offset < 0 || *length <= 0 || *offset > INT_MAX ||
            *length > INT_MAX)
            continue;
        QString argument;
        if (*found == Type::Pre)
            argument = stringOf(type, "language");
        else if (*found == Type::TextUrl)
            argument = stringOf(type, "url");
        if (*found == Type::MentionName) {
            // A name that leads to nobody is shown as plain text.
            const qint64 user = int64From(type.value("user_id"_L1)).value_or(0);
            if (user <= 0)
                continue;
            argument = QString::number(user);
        }
        entities.append({int(*offset), int(*length), *found, argument});
    }
    return entities;
}

MessageDetails messageDetails(const TdObject &message, const MessageDetailsContext &context)
{
    MessageDetails details;
    if (const auto id = int64From(message.value("id"_L1)))
        details.messageID = QString::number(*id);
    if (const auto date = integerFrom(message.value("date"_L1)); date && *date > 0)
        details.date = QDateTime::fromSecsSinceEpoch(*date);
    details.isEdited = integerFrom(message.value("edit_date"_L1)).value_or(0) > 0;
    const TdObject content = message.value("content"_L1).toObject();
    details.kind = kindOf(content);
    switch (details.kind) {
    case Kind::Text:
    case Kind::Other:
        details.text = messageText(content);
        if (typeOf(content) == "messageText"_L1)
            details.entities = textEntities(content.value("text"_L1).toObject());
        break;
    default:
        details.text = caption(content).value_or(QString());
        if (!details.text.isEmpty())
            details.entities = textEntities(content.value("caption"_L1).toObject());
        break;
    }
    readMedia(details, content);
    readCard(details, content);
    details.isForwarded = message.value("forward_info"_L1).isObject();
    details.forwardedFrom =
        originName(message.value("forward_info"_L1).toObject().value("origin"_L1).toObject(), context);
    readReply(details, message, context);
    return details;
}
