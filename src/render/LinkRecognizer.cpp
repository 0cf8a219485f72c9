#include "render/LinkRecognizer.h"

#include <QRegularExpression>
#include <QSet>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// Country codes, the classic generic domains and the newer ones that people
// actually type in chats. Kept short on purpose: a bare word such as "file.txt"
// must not become a link.
constexpr QStringView topLevelDomains =
    u"ac ad ae af ag ai al am ao aq ar as at au aw ax az ba bb bd be bf bg bh bi bj bm bn bo br bs bt bw by "
    u"bz ca cc cd cf cg ch ci ck cl cm cn co cr cu cv cw cx cy cz de dj dk dm do dz ec ee eg er es et eu fi "
    u"fj fk fm fo fr ga gd ge gf gg gh gi gl gm gn gp gq gr gs gt gu gw gy hk hm hn hr ht hu id ie il im in "
    u"io iq ir is it je jm jo jp ke kg kh ki km kn kp kr kw ky kz la lb lc li lk lr ls lt lu lv ly ma mc md "
    u"me mg mh mk ml mm mn mo mp mq mr ms mt mu mv mw mx my mz na nc ne nf ng ni nl no np nr nu nz om pa pe "
    u"pf pg ph pk pl pm pn pr ps pt pw py qa re ro rs ru rw sa sb sc sd se sg sh si sk sl sm sn so sr ss st "
    u"su sv sx sy sz tc td tf tg th tj tk tl tm tn to tr tt tv tw tz ua ug uk us uy uz va vc ve vg vi vn vu "
    u"wf ws ye yt za zm zw "
    u"com org net edu gov mil int info biz name pro mobi aero asia cat coop jobs museum tel travel "
    u"app dev page blog shop store online site website tech space xyz top club live life world today news "
    u"media art design cloud digital email games link wiki social studio agency company group team network "
    u"systems solutions services software codes tools chat zone center academy school moe ninja gallery "
    u"photo photos video music fun one global city guide money bank finance market events church health "
    u"рф укр бел срб қаз мкд";

// Characters an address may hold: everything but white space, angle brackets and
// quotation marks (which people put around addresses).
constexpr auto addressChars = uR"([^\s<>"«»“”‘’])";
// One domain label: letters and digits of any script, inner hyphens.
constexpr auto label = uR"([\p{L}\p{N}](?:[\p{L}\p{N}\-]{0,61}[\p{L}\p{N}])?)";

const QRegularExpression &schemeExpression()
{
    static const QRegularExpression expression(
        uR"((?<![A-Za-z0-9+.\-])[A-Za-z][A-Za-z0-9+.\-]{0,31}://[^\s<>"«»“”‘’/?#])"_s +
            QString::fromUtf16(addressChars) + u'*',
        QRegularExpression::UseUnicodePropertiesOption);
    return expression;
}

const QRegularExpression &domainExpression()
{
    // Optional e-mail local part, then labels, the top-level domain (captured),
    // an optional port and an optional path, query or fragment.
    static const QRegularExpression expression(
        uR"((?<![\p{L}\p{N}_@.\-])((?:mailto:)?[\p{L}\p{N}_%+\-]+(?:\.[\p{L}\p{N}_%+\-]+)*@)?)"_s +
            u"(?:%1\\.)+(\\p{L}{2,63})(?![\\p{L}\\p{N}_\\-])(:\\d{1,5}(?!\\d))?"_s.arg(QString::fromUtf16(label)) +
            u"(?:[/?#]%1*)?"_s.arg(QString::fromUtf16(addressChars)),
        QRegularExpression::UseUnicodePropertiesOption);
    return expression;
}

bool isSentencePunctuation(QChar c)
{
    return QStringView(u".,;:!?'\"…*_").contains(c) || c == u'\u3002' || c == u'\uFF0C';
}

// Leaves out what people write after an address: sentence punctuation and closing
// brackets without an opening one inside the address.
qsizetype trimmedLength(QStringView address, qsizetype minimum)
{
    qsizetype length = address.size();
    while (length > minimum) {
        const QChar last = address.at(length - 1);
        if (isSentencePunctuation(last)) {
            --length;
            continue;
        }
        static constexpr std::pair<QChar, QChar> pairs[] = {{u'(', u')'}, {u'[', u']'}, {u'{', u'}'}};
        bool unbalanced = false;
        for (const auto &[open, close] : pairs) {
            if (last == close) {
                const QStringView kept = address.first(length);
                unbalanced = kept.count(close) > kept.count(open);
            }
        }
        if (!unbalanced)
            break;
        --length;
    }
    return length;
}

} // namespace

bool isKnownTopLevelDomain(const QString &name)
{
    static const QSet<QString> names = [] {
        QSet<QString> set;
        for (const QStringView word : topLevelDomains.split(u' ', Qt::SkipEmptyParts))
            set.insert(word.toString());
        return set;
    }();
    return names.contains(name.toLower());
}

QList<TextLink> findLinks(const QString &text)
{
    QList<TextLink> links;
    auto overlapsFound = [&links](qsizetype start, qsizetype end) {
        return std::any_of(links.cbegin(), links.cend(), [&](const TextLink &link) {
            return std::max(link.start, start) < std::min(link.start + link.length, end);
        });
    };

    // Addresses with a scheme first: they may hold anything a bare domain or an
    // e-mail address could be mistaken for.
    auto schemes = schemeExpression().globalMatch(text);
    while (schemes.hasNext()) {
        const QRegularExpressionMatch match = schemes.next();
        const qsizetype schemeEnd = match.captured().indexOf(u"://"_s) + 4;
        const qsizetype length = trimmedLength(match.capturedView(), schemeEnd);
        const QString address = text.mid(match.capturedStart(), length);
        const QUrl url(address, QUrl::TolerantMode);
        if (url.isValid())
            links.append({match.capturedStart(), length, TextLink::Kind::Web, url});
    }

    auto domains = domainExpression().globalMatch(text);
    while (domains.hasNext()) {
        const QRegularExpressionMatch match = domains.next();
        const bool isEmail = match.capturedLength(1) > 0;
        const QString topLevel = match.captured(2);
        const bool isWww = match.captured().startsWith(u"www."_s, Qt::CaseInsensitive);
        if (!isKnownTopLevelDomain(topLevel) && !(isWww && !isEmail))
            continue;
        qsizetype length = match.capturedLength();
        if (isEmail) // an e-mail address ends with its domain (and port, never)
            length = match.capturedEnd(2) - match.capturedStart();
        else
            length = trimmedLength(match.capturedView(), match.capturedEnd(2) - match.capturedStart());
        const qsizetype start = match.capturedStart();
        if (overlapsFound(start, start + length))
            continue;
        const QString address = text.mid(start, length);
        QUrl url;
        if (isEmail)
            url = QUrl(address.startsWith(u"mailto:"_s) ? address : u"mailto:"_s + address, QUrl::TolerantMode);
        else
            url = QUrl(u"http://"_s + address, QUrl::TolerantMode);
        if (url.isValid())
            links.append({start, length, isEmail ? TextLink::Kind::Email : TextLink::Kind::Web, url});
    }

    std::sort(links.begin(), links.end(), [](const TextLink &a, const TextLink &b) { return a.start < b.start; });
    return links;
}

std::optional<QUrl> firstPreviewableLink(const QString &text)
{
    for (const TextLink &link : findLinks(text)) {
        const QString scheme = link.url.scheme();
        if (link.kind == TextLink::Kind::Web && (scheme == "http"_L1 || scheme == "https"_L1) &&
            !link.url.host().isEmpty())
            return link.url;
    }
    return std::nullopt;
}
