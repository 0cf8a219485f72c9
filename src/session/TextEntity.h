#pragma once

#include <QList>
#include <QMetaType>
#include <QString>

// A span of a message's text that is shown differently: bold, a link, a block of
// code. Offsets and lengths count UTF-16 code units, as TDLib and QString do. The
// spans come from the other side and are not trusted: the renderer checks them.
struct TextEntity {
    enum class Type {
        Bold,
        Italic,
        Underline,
        Strikethrough,
        Spoiler,
        Code,
        // A block of code; argument holds its language when the sender named one.
        Pre,
        // A link whose address (argument) differs from its text.
        TextUrl,
        // An address written in the text.
        Url,
        EmailAddress,
        // "@name": opens that public chat.
        Mention,
        // A name that stands for a user (argument: the user's id): opens their chat.
        MentionName,
        Hashtag,
        // A quoted block; an expandable one is shown whole as well.
        BlockQuote,
    };

    int offset = 0;
    int length = 0;
    Type type = Type::Bold;
    QString argument;

    friend bool operator==(const TextEntity &, const TextEntity &) = default;
};

using TextEntities = QList<TextEntity>;
Q_DECLARE_METATYPE(TextEntities)
