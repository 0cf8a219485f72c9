#pragma once

// The short texts shown for TDLib message contents, drafts and chat types, and
// the readers of a message's sticker format and reactions.

#include "session/ModelTypes.h"
#include "session/TextEntity.h"
#include "tdlib/TdJson.h"

#include <optional>

// The text of a message bubble.
QString messageText(const TdObject &content);
// The text with each character of its spoilers (but blanks and line breaks) shown
// as "▒": what they hide never leaves the bubble that can reveal it.
QString veiledText(const QString &text, const TextEntities &entities);
// messageText with the spoilers of its text or caption veiled: for quotes and
// notifications.
QString veiledMessageText(const TdObject &content);
// The chat-list preview of a last message, spoilers veiled; none gives "No
// messages yet".
QString previewText(const std::optional<TdObject> &message);
// A non-empty "caption"."text".
std::optional<QString> caption(const TdObject &content);
QString draftText(const QJsonValue &draft);
// The line under a chat's title, from its "type" object.
QString chatSubtitle(const QJsonValue &chatType);
// A user's first and last names joined by a blank, leaving out empty ones.
QString fullName(const TdObject &user);

StickerFormat stickerFormat(const QJsonValue &format);
// Emoji reactions from a message's "interaction_info", in TDLib's order.
QList<MessageReaction> messageReactions(const TdObject &message);

// Where TDLib keeps the media object of a message's content and, in it, the file:
// content[mediaKey][fileKey]. shownAs: how the transcript shows the file; none for
// a video note and a document (shown as a photo only when it is an image).
struct MediaPlace {
    QLatin1StringView type;
    QLatin1StringView mediaKey;
    QLatin1StringView fileKey;
    std::optional<MessageMediaKind> shownAs;
};
// The place of a content type that keeps one file in its media object (all but
// photos, which keep sizes); null for other types.
const MediaPlace *mediaPlace(const QString &contentType);

// The largest size of a photo ("photoSize") that is downloaded or can be; an
// empty object when there is none.
TdObject largestPhotoSize(const QJsonArray &sizes);
// A document shown as a photo: an image MIME type or an image file name.
bool isImageDocument(const TdObject &document);
// The local path of a completely downloaded file.
std::optional<QString> completedPath(const TdObject &file);
