#include "MessageText.h"

#include "render/FormattedText.h"
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

QList<FormattedBlock> blocksOf(const QString &text, const QVariant &entities, bool spoilersRevealed,
                               const QString &linkColor = {}, const QString &veilColor = {})
{
    FormattedTextStyle style;
    style.linkColor = linkColor;
    style.veilColor = veilColor;
    style.spoilersRevealed = spoilersRevealed;
    //: Read by screen readers in place of a spoiler, a part of a message hidden until clicked.
    style.hiddenSpoilerText = MessageText::tr("hidden text");
    return formattedBlocks(text, entities.value<TextEntities>(), style);
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

QVariantList MessageText::blocks(const QString &text, const QVariant &entities, bool spoilersRevealed,
                                 const QString &linkColor, const QString &veilColor)
{
    QVariantList items;
    for (const FormattedBlock &block : blocksOf(text, entities, spoilersRevealed, linkColor, veilColor))
        items.append(QVariantMap{{u"isCode"_s, block.isCode},
                                 {u"isQuote"_s, block.isQuote},
                                 {u"html"_s, block.html},
                                 {u"spokenText"_s, block.spokenText},
                                 {u"code"_s, block.code},
                                 {u"language"_s, block.language},
                                 {u"linkTargets"_s, block.linkTargets}});
    return items;
}

QString MessageText::spokenText(const QString &text, const QVariant &entities, bool spoilersRevealed)
{
    QStringList parts;
    for (const FormattedBlock &block : blocksOf(text, entities, spoilersRevealed))
        parts.append(block.spokenText);
    return parts.join(u'\n');
}

MessageText::LinkKind MessageText::linkKind(const QString &link)
{
    if (link == FormattedLinks::spoilerLink)
        return LinkKind::Spoiler;
    if (link.startsWith(FormattedLinks::mentionPrefix))
        return LinkKind::Mention;
    if (link.startsWith(FormattedLinks::userPrefix))
        return LinkKind::UserMention;
    if (link.startsWith(FormattedLinks::hashtagPrefix))
        return LinkKind::Hashtag;
    return LinkKind::Web;
}

QString MessageText::mentionedName(const QString &link)
{
    return link.startsWith(FormattedLinks::mentionPrefix) ? link.mid(FormattedLinks::mentionPrefix.size()) : QString();
}

QString MessageText::mentionedUser(const QString &link)
{
    return link.startsWith(FormattedLinks::userPrefix) ? link.mid(FormattedLinks::userPrefix.size()) : QString();
}

QString MessageText::hashtag(const QString &link)
{
    return link.startsWith(FormattedLinks::hashtagPrefix) ? link.mid(FormattedLinks::hashtagPrefix.size()) : QString();
}

QString MessageText::highlighted(const QString &html, const QString &words)
{
    const QString needle = words.trimmed().toHtmlEscaped();
    if (needle.isEmpty())
        return html;
    // Dark text on yellow reads in incoming and outgoing bubbles alike.
    static const QString open = u"<span style=\"background-color:#FFD54F;color:#1C1C1E\">"_s;
    static const QString close = u"</span>"_s;
    QString marked;
    marked.reserve(html.size() + 64);
    const QStringView source(html);
    qsizetype at = 0;
    while (at < source.size()) {
        if (source.at(at) == u'<') {
            const qsizetype tagEnd = source.indexOf(u'>', at);
            const qsizetype end = tagEnd < 0 ? source.size() : tagEnd + 1;
            marked += source.mid(at, end - at);
            at = end;
            continue;
        }
        qsizetype textEnd = source.indexOf(u'<', at);
        if (textEnd < 0)
            textEnd = source.size();
        const QStringView text = source.mid(at, textEnd - at);
        qsizetype from = 0;
        for (qsizetype found = text.indexOf(needle, 0, Qt::CaseInsensitive); found >= 0;
             found = text.indexOf(needle, from, Qt::CaseInsensitive)) {
            marked += text.mid(from, found - from);
            marked += open;
            marked += text.mid(found, needle.size());
            marked += close;
            from = found + needle.size();
        }
        marked += text.mid(from);
        at = textEnd;
    }
    return marked;
}
