#pragma once

#include <QObject>
#include <QVariant>
#include <QtQml/qqmlregistration.h>

// Message text as the transcript shows it: HTML-escaped, typed smileys shown as
// emoji, links made clickable, line breaks kept. The stored text never changes.
class MessageText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    // What a click on a link of the rich text does.
    enum class LinkKind { Web, Spoiler, Mention, UserMention, Hashtag };
    Q_ENUM(LinkKind)

    explicit MessageText(QObject *parent = nullptr);

    // The text with its entities (MessageDetails' entities) as blocks: maps with
    // isCode, isQuote, html, spokenText, code, language and linkTargets. Hidden spoilers
    // are veiled in veilColor until revealed.
    Q_INVOKABLE static QVariantList blocks(const QString &text, const QVariant &entities, bool spoilersRevealed,
                                           const QString &linkColor, const QString &veilColor);
    // What a screen reader reads of the whole text: hidden spoilers left out.
    Q_INVOKABLE static QString spokenText(const QString &text, const QVariant &entities, bool spoilersRevealed);
    Q_INVOKABLE static MessageText::LinkKind linkKind(const QString &link);
    // The username a mention's link names, without "@".
    Q_INVOKABLE static QString mentionedName(const QString &link);
    // The id of the user a name mention's link stands for.
    Q_INVOKABLE static QString mentionedUser(const QString &link);
    // The tag a hashtag's link stands for, with its "#".
    Q_INVOKABLE static QString hashtag(const QString &link);

    // The rich text with every occurrence of the words, ignoring case, marked
    // (outside tags only); unchanged when the words are empty.
    Q_INVOKABLE static QString highlighted(const QString &html, const QString &words);
    // Rich text for a Text item with textFormat Text.RichText (or StyledText);
    // linkColor colours the links.
    Q_INVOKABLE static QString richText(const QString &text, const QString &linkColor = QString());
    // The same text as plain text, smileys as emoji: what a screen reader reads.
    Q_INVOKABLE static QString displayText(const QString &text);
    // The first web address of the text, for its preview card; "" when there is none.
    Q_INVOKABLE static QString firstLink(const QString &text);
    // Whether the text is one to three emoji and nothing else: shown large.
    Q_INVOKABLE static bool isLargeEmoji(const QString &text);
    // Emoji for a Text item in the colour emoji font: sequences stay one glyph.
    Q_INVOKABLE static QString emojiGlyphs(const QString &text);
};
