#pragma once

#include "session/TextEntity.h"

#include <QList>
#include <QString>
#include <QStringList>

class QUrl;

// Message text with its entities as the transcript shows it: paragraphs of rich
// text (every piece of the message HTML-escaped, typed smileys as emoji, links
// clickable), quoted paragraphs and blocks of code shown apart, in monospace, each
// with its text for copying. Entities past the end of the text, empty ones or ones that cross a
// block of code are dropped or cut: the text itself is always shown whole.
struct FormattedBlock {
    bool isCode = false;
    // A quoted paragraph, shown set apart.
    bool isQuote = false;
    // A paragraph's rich text; empty for a block of code.
    QString html;
    // What a screen reader reads: the plain text, hidden spoilers left out.
    QString spokenText;
    // A block of code's text and the language its sender named ("" when none).
    QString code;
    QString language;
    // The addresses of the paragraph's links whose text differs from them.
    QStringList linkTargets;

    friend bool operator==(const FormattedBlock &, const FormattedBlock &) = default;
};

struct FormattedTextStyle {
    // CSS colours of links and of the veil over hidden spoilers; empty for the
    // text's defaults.
    QString linkColor;
    QString veilColor;
    bool spoilersRevealed = false;
    // Read in place of a hidden spoiler.
    QString hiddenSpoilerText;
};

// Links inside the rich text that are not web addresses.
namespace FormattedLinks {
// A click on a hidden spoiler.
inline constexpr QLatin1StringView spoilerLink{"vost-spoiler:"};
// A mention: the prefix, then the username without "@".
inline constexpr QLatin1StringView mentionPrefix{"vost-mention:"};
// A name that stands for a user: the prefix, then the user's id.
inline constexpr QLatin1StringView userPrefix{"vost-user:"};
// A hashtag (or cashtag): the prefix, then the tag with its "#" or "$".
inline constexpr QLatin1StringView hashtagPrefix{"vost-hashtag:"};
} // namespace FormattedLinks

// The public username a Telegram link names ("https://t.me/name", a message of it
// "t.me/name/42", "tg://resolve?domain=name"), so that it opens in the program;
// "" for any other address, and for t.me's own pages (invitations, sticker sets).
QString telegramUsername(const QUrl &url);

QList<FormattedBlock> formattedBlocks(const QString &text, const TextEntities &entities,
                                      const FormattedTextStyle &style = {});
