#include "MessageText.h"

#include "render/LinkRecognizer.h"
#include "render/SmileyText.h"
#include "session/Emoji.h"

using namespace Qt::StringLiterals;

namespace {

// Escaped for HTML, with smileys as emoji and line breaks as <br>.
QString plainPart(const QString &text)
{
    QString escaped = SmileyText::render(text).toHtmlEscaped();
    escaped.replace(u"\n"_s, u"<br>"_s);
    return escaped;
}

} // namespace

MessageText::MessageText(QObject *parent)
    : QObject(parent)
{}

QString MessageText::richText(const QString &text, const QString &linkColor)
{
    // Links are found in the original text, so that smileys never touch them; the
    // text between links is converted piece by piece.
    const QList<TextLink> links = findLinks(text);
    const QString style = linkColor.isEmpty() ? QString() : u" style=\"color:%1\""_s.arg(linkColor.toHtmlEscaped());
    QString html;
    qsizetype position = 0;
    for (const TextLink &link : links) {
        html += plainPart(text.mid(position, link.start - position));
        html += u"<a href=\"%1\"%2>%3</a>"_s.arg(link.url.toString(QUrl::FullyEncoded).toHtmlEscaped(), style,
                                                 text.mid(link.start, link.length).toHtmlEscaped());
        position = link.start + link.length;
    }
    html += plainPart(text.mid(position));
    return html;
}

QString MessageText::displayText(const QString &text)
{
    return SmileyText::render(text);
}

QString MessageText::firstLink(const QString &text)
{
    const std::optional<QUrl> link = firstPreviewableLink(text);
    return link ? link->toString() : QString();
}

bool MessageText::isLargeEmoji(const QString &text)
{
    constexpr int mostShownLarge = 3;
    const int count = emojiOnlyCount(text);
    return count > 0 && count <= mostShownLarge;
}

QString MessageText::emojiGlyphs(const QString &text)
{
    return emojiFontText(text);
}
