#pragma once

// What the message widgets show beyond the Message record, read from the stored
// TDLib message: the record itself stays as the session's model defines it. No
// widget reads TDLib's JSON; they read this.

#include "session/TextEntity.h"
#include "tdlib/TdJson.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>

#include <functional>

// The kinds of what a message holds; a class only to carry its enumerations to
// the views.
class MessageContent : public QObject
{
    Q_OBJECT

public:
    // What a message holds, which decides the widget that shows it.
    enum class Kind {
        Text,
        Photo,
        Video,
        Animation,
        VoiceNote,
        VideoNote,
        Audio,
        Document,
        Sticker,
        Location,
        Venue,
        Contact,
        Poll,
        Call,
        Dice,
        Other
    };
    Q_ENUM(Kind)

    // How a call ended.
    enum class CallEnd { Ended, Missed, Declined, Disconnected };
    Q_ENUM(CallEnd)
};

struct PollChoice {
    QString text;
    int voterCount = 0;
    int percentage = 0;
    bool isChosen = false;

    friend bool operator==(const PollChoice &, const PollChoice &) = default;
};

struct MessageDetails {
    QString messageID;
    // When the message was sent; invalid when TDLib gave no date.
    QDateTime date;
    bool isEdited = false;
    MessageContent::Kind kind = MessageContent::Kind::Text;
    // The bubble's line of text: the message's text, or its media's caption. Media
    // and cards without one show none: their preview texts belong to the chat list
    // and to notifications.
    QString text;
    // How parts of text are shown (bold, links, code…); empty for plain text.
    TextEntities entities;
    // Who the message was forwarded from; empty when it was not (or is unknown).
    QString forwardedFrom;
    // Forwarded messages are never edited.
    bool isForwarded = false;
    // The message it answers, its sender and a line of it; empty when it is no reply.
    QString replyToMessageID;
    // Empty when the answered message is the user's own (replyToIsOutgoing).
    QString replyToSender;
    bool replyToIsOutgoing = false;
    QString replyToText;
    // TDLib answered that the answered message is gone.
    bool replyToMissing = false;

    // The media's or document's file.
    qint64 fileID = 0;
    qint64 fileSize = 0;
    QString fileName;
    QString mimeType;
    int width = 0;
    int height = 0;
    // Seconds of a video, animation, voice or video note, audio, or call.
    int duration = 0;
    QString title;
    QString performer;
    // A tiny JPEG that stands in while the media downloads.
    QByteArray minithumbnail;

    double latitude = 0;
    double longitude = 0;
    // A venue's name and address; a contact's name and phone number.
    QString placeName;
    QString address;
    QString contactName;
    QString contactPhone;
    // The contact's Telegram account; 0 when the number has none.
    qint64 contactUserID = 0;

    QString pollQuestion;
    QList<PollChoice> pollChoices;
    int pollVoterCount = 0;
    bool pollIsClosed = false;
    bool pollIsAnonymous = false;
    bool pollIsQuiz = false;

    bool callIsVideo = false;
    MessageContent::CallEnd callEnd = MessageContent::CallEnd::Ended;

    QString diceEmoji;
    int diceValue = 0;

    friend bool operator==(const MessageDetails &, const MessageDetails &) = default;
};

// What the reader needs to know beyond the message: names of users and chats, and
// the other messages of the chat (for replies).
struct MessageDetailsContext {
    std::function<QString(qint64 userID)> userName;
    std::function<QString(qint64 chatID)> chatTitle;
    // A stored message of the same chat, or null.
    std::function<const TdObject *(qint64 messageID)> storedMessage;
    // Whether TDLib said that a message of the same chat does not exist.
    std::function<bool(qint64 messageID)> missingMessage;
};

MessageDetails messageDetails(const TdObject &message, const MessageDetailsContext &context = {});

// The spans of a TDLib formattedText that change how its text looks; entities of
// unknown or malformed types are left out.
TextEntities textEntities(const TdObject &formattedText);
