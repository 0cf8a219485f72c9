#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// Message text as the transcript shows it: HTML-escaped, typed smileys shown as
// emoji, links made clickable, line breaks kept. The stored text never changes.
class MessageText : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit MessageText(QObject *parent = nullptr);

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
