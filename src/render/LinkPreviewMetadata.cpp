#include "render/LinkPreviewMetadata.h"

#include "render/PageFetchClient.h"
#include "session/ChangedValue.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringDecoder>
#include <QTextDocumentFragment>

using namespace Qt::StringLiterals;

namespace {

std::optional<QString> optionalString(const QJsonObject &object, const QString &key, bool &ok)
{
    const QJsonValue value = object.value(key);
    if (value.isUndefined() || value.isNull())
        return std::nullopt;
    if (!value.isString())
        ok = false;
    return value.toString();
}

QUrl strictUrl(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    return url.isValid() && !url.isRelative() ? url : QUrl();
}

std::optional<QString> decodeBody(const QByteArray &body)
{
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString text = utf8.decode(body);
    if (!utf8.hasError())
        return text;
    QStringDecoder latin1(QStringDecoder::Latin1);
    text = latin1.decode(body);
    if (!latin1.hasError())
        return text;
    return std::nullopt;
}

} // namespace

std::optional<AppStoreLookupResponse> decodeAppStoreLookup(const QByteArray &body)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(body, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject())
        return std::nullopt;
    const QJsonValue results = document.object().value("results"_L1);
    if (!results.isArray())
        return std::nullopt;
    AppStoreLookupResponse response;
    for (const QJsonValue &item : results.toArray()) {
        const QJsonObject object = item.toObject();
        if (!item.isObject() || !object.value("trackName"_L1).isString())
            return std::nullopt;
        bool ok = true;
        AppStoreResult result{object.value("trackName"_L1).toString(), optionalString(object, u"sellerName"_s, ok),
                              optionalString(object, u"artworkUrl100"_s, ok)};
        if (!ok)
            return std::nullopt;
        response.results.append(result);
    }
    return response;
}

HtmlPreviewFields parseHtmlPreviewFields(const QString &html, const QUrl &pageUrl)
{
    static const QRegularExpression metaTag(uR"((?is)<meta\s+[^>]*>)"_s);
    static const QRegularExpression titleElement(uR"((?is)<title[^>]*>(.*?)</title>)"_s);
    static const QRegularExpression linkTag(uR"((?is)<link\s+[^>]*>)"_s);

    QHash<QString, QString> meta; // the first occurrence of a key wins
    auto metaTags = metaTag.globalMatch(html);
    while (metaTags.hasNext()) {
        const QString tag = metaTags.next().captured();
        std::optional<QString> key = LinkPreviewMetadata::attribute(u"property"_s, tag);
        if (!key)
            key = LinkPreviewMetadata::attribute(u"name"_s, tag);
        const std::optional<QString> value = LinkPreviewMetadata::attribute(u"content"_s, tag);
        if (!key || !value)
            continue;
        const QString lowered = key->toLower();
        if (!meta.contains(lowered))
            meta.insert(lowered, LinkPreviewMetadata::decodeHTMLEntities(*value));
    }

    HtmlPreviewFields fields;
    std::optional<QString> rawTitle;
    if (const auto ogTitle = meta.constFind(u"og:title"_s); ogTitle != meta.constEnd()) {
        rawTitle = *ogTitle;
    } else if (const QRegularExpressionMatch match = titleElement.match(html); match.hasMatch()) {
        rawTitle = match.captured(1);
    }
    if (rawTitle)
        fields.title = LinkPreviewMetadata::decodeHTMLEntities(*rawTitle).trimmed();

    if (const QString siteName = meta.value(u"og:site_name"_s); !siteName.isEmpty())
        fields.siteName = siteName;

    if (const auto ogImage = meta.constFind(u"og:image"_s); ogImage != meta.constEnd()) {
        const QUrl resolved = pageUrl.resolved(QUrl(*ogImage));
        if (!ogImage->isEmpty() && resolved.isValid())
            fields.imageUrl = resolved;
    } else {
        auto linkTags = linkTag.globalMatch(html);
        while (linkTags.hasNext()) {
            const QString tag = linkTags.next().captured();
            const std::optional<QString> rel = LinkPreviewMetadata::attribute(u"rel"_s, tag);
            if (!rel || !rel->toLower().contains("icon"_L1))
                continue;
            if (const std::optional<QString> href = LinkPreviewMetadata::attribute(u"href"_s, tag)) {
                const QUrl resolved = pageUrl.resolved(QUrl(*href));
                if (resolved.isValid())
                    fields.imageUrl = resolved;
            }
            break;
        }
    }
    return fields;
}

LinkPreviewMetadata::LinkPreviewMetadata(const QUrl &url, QObject *parent)
    : LinkPreviewMetadata(url, AppStoreConfiguration(), parent)
{}

LinkPreviewMetadata::LinkPreviewMetadata(const QUrl &url, const AppStoreConfiguration &appStore, QObject *parent)
    : QObject(parent)
    , m_url(url)
    , m_appStore(appStore)
{
    const QString host = url.host(QUrl::PrettyDecoded);
    m_title = host.isEmpty() ? url.toString(QUrl::FullyEncoded) : host;
    m_siteName = m_title;
}

LinkPreviewMetadata::~LinkPreviewMetadata()
{
    for (const quint32 fetch : std::as_const(m_fetches))
        PageFetchClient::instance().cancel(fetch);
}

void LinkPreviewMetadata::load()
{
    if (m_hasLoaded)
        return;
    m_hasLoaded = true;
    m_isLoading = true;
    Q_EMIT hasLoadedChanged();
    Q_EMIT isLoadingChanged();
    auto done = [this] {
        m_isLoading = false;
        Q_EMIT isLoadingChanged();
        Q_EMIT finished();
    };
    loadAppStoreMetadata([this, done](bool applied) {
        if (applied)
            done();
        else
            loadHTMLMetadata(done);
    });
}

void LinkPreviewMetadata::loadAppStoreMetadata(std::function<void(bool)> completion)
{
    const AppStoreConfiguration &store = m_appStore;
    const QString host = m_url.host();
    if (host.isEmpty() || store.webHost.isEmpty() || !host.endsWith(store.webHost))
        return completion(false);
    static const QRegularExpression appNumber(uR"(/id(\d+))"_s);
    const QRegularExpressionMatch match = appNumber.match(m_url.toString(QUrl::FullyEncoded));
    if (!match.hasMatch())
        return completion(false);
    const QUrl lookup = strictUrl(store.lookupEndpoint + match.captured(1));
    if (lookup.isEmpty())
        return completion(false);

    fetch(lookup, defaultTimeoutMilliseconds, false, [this, completion](const PageFetchProtocol::Answer &answer) {
        if (!answer.reached)
            return completion(false);
        const std::optional<AppStoreLookupResponse> response = decodeAppStoreLookup(answer.body);
        if (!response || response->results.isEmpty())
            return completion(false);
        const AppStoreResult &result = response->results.first();
        setTitle(result.trackName);
        setSiteName(result.sellerName.value_or(u"App Store"_s));
        const QUrl artwork = result.artworkUrl100 ? strictUrl(*result.artworkUrl100) : QUrl();
        if (artwork.isEmpty())
            return completion(true);
        loadImage(artwork, [completion] { completion(true); });
    });
}

void LinkPreviewMetadata::loadHTMLMetadata(std::function<void()> completion)
{
    // Previews give up after 15 s; the page is asked for as a desktop browser would.
    fetch(m_url, pageTimeoutMilliseconds, true, [this, completion](const PageFetchProtocol::Answer &answer) {
        if (!answer.reached)
            return completion();
        if (answer.status && (*answer.status < 200 || *answer.status >= 400))
            return completion();
        const std::optional<QString> text = decodeBody(answer.body);
        if (!text)
            return completion();
        const HtmlPreviewFields fields = parseHtmlPreviewFields(*text, m_url);
        if (fields.title)
            setTitle(*fields.title);
        if (fields.siteName)
            setSiteName(*fields.siteName);
        if (!fields.imageUrl)
            return completion();
        loadImage(*fields.imageUrl, completion);
    });
}

void LinkPreviewMetadata::loadImage(const QUrl &from, std::function<void()> completion)
{
    fetch(from, defaultTimeoutMilliseconds, false, [this, completion](const PageFetchProtocol::Answer &answer) {
        if (!answer.reached || !answer.mimeType.startsWith("image/"_L1))
            return completion();
        const QImage decoded = QImage::fromData(answer.body);
        if (!decoded.isNull()) {
            m_image = decoded;
            Q_EMIT imageChanged();
        }
        completion();
    });
}

std::optional<QString> LinkPreviewMetadata::attribute(const QString &name, const QString &tag)
{
    const QRegularExpression expression(u"(?i)\\b"_s + QRegularExpression::escape(name) +
                                        uR"(\s*=\s*["']([^"']*)["'])"_s);
    const QRegularExpressionMatch match = expression.match(tag);
    if (!match.hasMatch())
        return std::nullopt;
    return match.captured(1);
}

QString LinkPreviewMetadata::decodeHTMLEntities(const QString &text)
{
    return QTextDocumentFragment::fromHtml(text).toPlainText();
}

void LinkPreviewMetadata::fetch(const QUrl &url, int timeoutMs, bool browserIdentity,
                                std::function<void(const PageFetchProtocol::Answer &)> handler)
{
    const quint32 id = PageFetchClient::instance().fetch(url, timeoutMs, browserIdentity, this,
                                                         [this, handler = std::move(handler)](const auto &answer) {
                                                             m_fetches.removeAll(answer.id);
                                                             handler(answer);
                                                         });
    m_fetches.append(id);
}

void LinkPreviewMetadata::setTitle(const QString &title)
{
    if (assignChanged(m_title, title))
        Q_EMIT titleChanged();
}

void LinkPreviewMetadata::setSiteName(const QString &siteName)
{
    if (assignChanged(m_siteName, siteName))
        Q_EMIT siteNameChanged();
}
