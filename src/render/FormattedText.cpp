#include "render/FormattedText.h"

#include "render/LinkRecognizer.h"
#include "render/SmileyText.h"

#include <QRegularExpression>
#include <QSet>
#include <QUrl>
#include <QUrlQuery>

#include <algorithm>

using namespace Qt::StringLiterals;
using Type = TextEntity::Type;

namespace {

// An entity checked against the text: start and end inside it, never between the
// two halves of a surrogate pair.
struct Span {
    qsizetype start = 0;
    qsizetype end = 0;
    TextEntity entity;
};

bool isLink(Type type)
{
    return type == Type::TextUrl || type == Type::Url || type == Type::EmailAddress || type == Type::Mention ||
           type == Type::MentionName || type == Type::Hashtag;
}

// Where a click on an address goes: a Telegram link that names a user or chat opens
// it here, any other address in the browser.
QString hrefFor(const QUrl &url)
{
    const QString username = telegramUsername(url);
    return username.isEmpty() ? url.toString(QUrl::FullyEncoded) : FormattedLinks::mentionPrefix + username;
}

// Blocks of code and quotes are shown apart from the paragraphs around them.
bool isBlock(Type type)
{
    return type == Type::Pre || type == Type::BlockQuote;
}

bool splitsPair(const QString &text, qsizetype at)
{
    return at > 0 && at < text.size() && text.at(at).isLowSurrogate() && text.at(at - 1).isHighSurrogate();
}

QList<Span> checkedSpans(const QString &text, const TextEntities &entities)
{
    QList<Span> spans;
    for (const TextEntity &entity : entities) {
        if (entity.offset < 0 || entity.length <= 0 || entity.offset >= text.size())
            continue;
        Span span{entity.offset, std::min<qsizetype>(qsizetype(entity.offset) + entity.length, text.size()), entity};
        if (splitsPair(text, span.start))
            --span.start;
        if (splitsPair(text, span.end))
            ++span.end;
        spans.append(span);
    }
    std::stable_sort(spans.begin(), spans.end(), [](const Span &a, const Span &b) { return a.start < b.start; });
    // Blocks (of code, quotes) cannot hold one another, nor links one another: of
    // two that overlap, the one that starts first is kept.
    QList<Span> kept;
    qsizetype blockEnd = 0;
    qsizetype linkEnd = 0;
    for (const Span &span : std::as_const(spans)) {
        const bool block = isBlock(span.entity.type);
        if (block || isLink(span.entity.type)) {
            qsizetype &end = block ? blockEnd : linkEnd;
            if (span.start < end)
                continue;
            end = span.end;
        }
        kept.append(span);
    }
    return kept;
}

// Escaped for HTML, with smileys as emoji and line breaks as <br>.
QString plainPart(const QString &text)
{
    QString escaped = SmileyText::render(text).toHtmlEscaped();
    escaped.replace(u"\n"_s, u"<br>"_s);
    return escaped;
}

QString anchor(const QString &href, const QString &style, const QString &html)
{
    return u"<a href=\"%1\"%2>%3</a>"_s.arg(href.toHtmlEscaped(), style, html);
}

// Plain text with the addresses written in it made clickable.
QString withFoundLinks(const QString &text, const QString &linkStyle)
{
    QString html;
    qsizetype position = 0;
    for (const TextLink &link : findLinks(text)) {
        html += plainPart(text.mid(position, link.start - position));
        html += anchor(hrefFor(link.url), linkStyle, text.mid(link.start, link.length).toHtmlEscaped());
        position = link.start + link.length;
    }
    return html + plainPart(text.mid(position));
}

// Characters of a hidden spoiler drawn as a veil: its length shows, its text not.
QString veiled(const QString &text)
{
    QString veil;
    for (const QChar c : text) {
        if (c == u'\n')
            veil += u"<br>"_s;
        else if (c.isSpace())
            veil += u' ';
        else if (!c.isLowSurrogate())
            veil += u'▒';
    }
    return veil;
}

// Where a link entity leads; empty when nowhere that may be opened.
QString linkTarget(const QString &text, const Span &span)
{
    const QString shown = text.mid(span.start, span.end - span.start);
    switch (span.entity.type) {
    case Type::TextUrl: {
        QUrl url(span.entity.argument.trimmed());
        if (url.isValid() && url.scheme().isEmpty())
            url = QUrl::fromUserInput(span.entity.argument.trimmed());
        const QString scheme = url.scheme().toLower();
        return url.isValid() && (scheme == "http"_L1 || scheme == "https"_L1 || scheme == "tg"_L1) ? hrefFor(url)
                                                                                                   : QString();
    }
    case Type::Url: {
        const QUrl url = QUrl::fromUserInput(shown.trimmed());
        return url.isValid() ? hrefFor(url) : QString();
    }
    case Type::EmailAddress:
        return u"mailto:"_s + shown.trimmed();
    case Type::Mention:
        return shown.startsWith(u'@') && shown.size() > 1 ? FormattedLinks::mentionPrefix + shown.mid(1) : QString();
    case Type::MentionName:
        return FormattedLinks::userPrefix + span.entity.argument;
    case Type::Hashtag:
        return shown.size() > 1 ? FormattedLinks::hashtagPrefix + shown : QString();
    default:
        return {};
    }
}

FormattedBlock paragraph(const QString &text, qsizetype from, qsizetype to, const QList<Span> &spans,
                         const FormattedTextStyle &style)
{
    const QString linkStyle =
        style.linkColor.isEmpty() ? QString() : u" style=\"color:%1\""_s.arg(style.linkColor.toHtmlEscaped());
    QList<qsizetype> cuts{from, to};
    for (const Span &span : spans) {
        if (isBlock(span.entity.type))
            continue;
        for (const qsizetype at : {span.start, span.end})
            if (at > from && at < to)
                cuts.append(at);
    }
    std::sort(cuts.begin(), cuts.end());
    cuts.erase(std::unique(cuts.begin(), cuts.end()), cuts.end());

    FormattedBlock block;
    bool previousHidden = false;
    for (qsizetype i = 0; i + 1 < cuts.size(); ++i) {
        const qsizetype start = cuts.at(i);
        const qsizetype end = cuts.at(i + 1);
        const QString piece = text.mid(start, end - start);
        QSet<Type> types;
        const Span *link = nullptr;
        for (const Span &span : spans) {
            if (isBlock(span.entity.type) || span.start > start || span.end < end)
                continue;
            types.insert(span.entity.type);
            if (isLink(span.entity.type))
                link = &span;
        }
        const bool hidden = types.contains(Type::Spoiler) && !style.spoilersRevealed;
        if (hidden) {
            if (!previousHidden)
                block.spokenText += style.hiddenSpoilerText;
            previousHidden = true;
            const QString veil = style.veilColor.isEmpty()
                                     ? QString()
                                     : u"color:%1;background-color:%1;"_s.arg(style.veilColor.toHtmlEscaped());
            block.html +=
                anchor(FormattedLinks::spoilerLink, u" style=\"%1text-decoration:none\""_s.arg(veil), veiled(piece));
            continue;
        }
        previousHidden = false;
        const bool code = types.contains(Type::Code);
        block.spokenText += code ? piece : SmileyText::render(piece);

        QString html;
        const QString target = link ? linkTarget(text, *link) : QString();
        if (code) {
            html = u"<code>"_s + piece.toHtmlEscaped().replace(u"\n"_s, u"<br>"_s) + u"</code>"_s;
        } else if (link) {
            html = plainPart(piece);
        } else {
            html = withFoundLinks(piece, linkStyle);
        }
        if (types.contains(Type::Strikethrough))
            html = u"<s>"_s + html + u"</s>"_s;
        if (types.contains(Type::Underline))
            html = u"<u>"_s + html + u"</u>"_s;
        if (types.contains(Type::Italic))
            html = u"<i>"_s + html + u"</i>"_s;
        if (types.contains(Type::Bold))
            html = u"<b>"_s + html + u"</b>"_s;
        if (!target.isEmpty()) {
            html = anchor(target, linkStyle, html);
            // A Telegram link opens here, but its text still names the address.
            const QString shown = target.startsWith(FormattedLinks::mentionPrefix)
                                      ? QUrl::fromUserInput(link->entity.argument.trimmed()).toDisplayString()
                                      : QUrl(target).toDisplayString();
            if (link->entity.type == Type::TextUrl && !block.linkTargets.contains(shown))
                block.linkTargets.append(shown);
        }
        block.html += html;
    }
    return block;
}

} // namespace

QString telegramUsername(const QUrl &url)
{
    // t.me's own pages, which name no user or chat.
    static const QSet<QString> reserved{u"joinchat"_s, u"addstickers"_s, u"addemoji"_s, u"addtheme"_s,
                                        u"addlist"_s,  u"setlanguage"_s, u"share"_s,    u"proxy"_s,
                                        u"socks"_s,    u"login"_s,       u"invoice"_s,  u"confirmphone"_s,
                                        u"boost"_s,    u"contact"_s,     u"giftcode"_s, u"iv"_s};
    static const QRegularExpression username(u"^[A-Za-z][A-Za-z0-9_]{3,31}$"_s);
    const QString scheme = url.scheme().toLower();
    QString name;
    if (scheme == "tg"_L1) {
        if (url.host().toLower() == "resolve"_L1)
            name = QUrlQuery(url).queryItemValue(u"domain"_s);
    } else if (scheme == "http"_L1 || scheme == "https"_L1) {
        QString host = url.host().toLower();
        if (host.startsWith("www."_L1))
            host = host.mid(4);
        if (host != "t.me"_L1 && host != "telegram.me"_L1 && host != "telegram.dog"_L1)
            return {};
        QStringList parts = url.path().split(u'/', Qt::SkipEmptyParts);
        // "/s/name" is a channel's page for the web.
        if (parts.size() >= 2 && parts.first() == "s"_L1)
            parts.removeFirst();
        static const QRegularExpression number(u"^[0-9]+$"_s);
        if (parts.size() == 1 || (parts.size() == 2 && number.match(parts.at(1)).hasMatch()))
            name = parts.first();
    }
    if (!username.match(name).hasMatch() || reserved.contains(name.toLower()))
        return {};
    return name;
}

QList<FormattedBlock> formattedBlocks(const QString &text, const TextEntities &entities,
                                      const FormattedTextStyle &style)
{
    const QList<Span> spans = checkedSpans(text, entities);
    QList<FormattedBlock> blocks;
    // The text between blocks, without the line breaks that only set the blocks
    // apart.
    const auto addParagraph = [&](qsizetype from, qsizetype to, bool beforeBlock, bool afterBlock) {
        while (afterBlock && from < to && text.at(from) == u'\n')
            ++from;
        while (beforeBlock && to > from && text.at(to - 1) == u'\n')
            --to;
        if (from < to || (blocks.isEmpty() && !beforeBlock))
            blocks.append(paragraph(text, from, to, spans, style));
    };
    qsizetype position = 0;
    for (const Span &span : spans) {
        if (!isBlock(span.entity.type))
            continue;
        addParagraph(position, span.start, true, position > 0);
        if (span.entity.type == Type::Pre) {
            const QString code = text.mid(span.start, span.end - span.start);
            blocks.append({true, false, {}, code, code, span.entity.argument.trimmed(), {}});
        } else {
            qsizetype end = span.end;
            while (end > span.start && text.at(end - 1) == u'\n')
                --end;
            FormattedBlock quote = paragraph(text, span.start, end, spans, style);
            quote.isQuote = true;
            blocks.append(quote);
        }
        position = span.end;
    }
    if (position < text.size() || blocks.isEmpty())
        addParagraph(position, text.size(), false, position > 0);
    return blocks;
}
