#pragma once

#include <QByteArray>
#include <QImage>
#include <QList>
#include <QObject>
#include <QString>
#include <QUrl>

#include <functional>
#include <optional>

namespace PageFetchProtocol {
struct Answer;
}

// The app store's public lookup service answers {"results": [...]}; only these keys
// are read.
struct AppStoreResult {
    QString trackName;
    std::optional<QString> sellerName;
    std::optional<QString> artworkUrl100;
};

struct AppStoreLookupResponse {
    QList<AppStoreResult> results;
};

// None when the body is not such an object (a result without a track name, or a
// key of the wrong type, spoils the whole answer).
std::optional<AppStoreLookupResponse> decodeAppStoreLookup(const QByteArray &body);

// What a web page says about itself in its meta, title and link tags.
struct HtmlPreviewFields {
    std::optional<QString> title;    // og:title, else the title element; decoded and trimmed
    std::optional<QString> siteName; // og:site_name when not empty
    std::optional<QUrl> imageUrl;    // og:image, else the first icon link; absolute
};

HtmlPreviewFields parseHtmlPreviewFields(const QString &html, const QUrl &pageUrl);

// Where app-store pages live and where the store describes an app by its number.
struct AppStoreConfiguration {
    QString webHost = QStringLiteral("apps.apple.com");
    QString lookupEndpoint = QStringLiteral("https://itunes.apple.com/lookup?id=");
};

// What a link preview card shows for one address: a title, a site name and a
// thumbnail. Best effort: every failure leaves the values set so far (at least the
// host name). Lives on the main thread; all property changes happen there.
class LinkPreviewMetadata : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QUrl url READ url CONSTANT)
    Q_PROPERTY(QString title READ title NOTIFY titleChanged)
    Q_PROPERTY(QString siteName READ siteName NOTIFY siteNameChanged)
    Q_PROPERTY(QImage image READ image NOTIFY imageChanged)
    Q_PROPERTY(bool hasImage READ hasImage NOTIFY imageChanged)
    Q_PROPERTY(bool hasLoaded READ hasLoaded NOTIFY hasLoadedChanged)
    Q_PROPERTY(bool isLoading READ isLoading NOTIFY isLoadingChanged)

public:
    // Sets the initial values; no I/O.
    explicit LinkPreviewMetadata(const QUrl &url, QObject *parent = nullptr);
    // The same, with the app store at another place (a server of a test's or a tool's own).
    LinkPreviewMetadata(const QUrl &url, const AppStoreConfiguration &appStore, QObject *parent = nullptr);
    ~LinkPreviewMetadata() override;

    QUrl url() const { return m_url; }
    QString title() const { return m_title; }
    QString siteName() const { return m_siteName; }
    QImage image() const { return m_image; }
    bool hasImage() const { return !m_image.isNull(); }
    bool hasLoaded() const { return m_hasLoaded; }
    bool isLoading() const { return m_isLoading; }

    static constexpr int pageTimeoutMilliseconds = 15'000;
    // The usual time-out of a URL loader's default request.
    static constexpr int defaultTimeoutMilliseconds = 60'000;
    // How many redirects may lead to a page or a picture (it may take 8 MB after
    // decompression: PageFetchProtocol::maximumBodyBytes).
    static constexpr int maximumRedirects = 10;

    // The card's start-up: once per object, the app-store lookup, and when that does
    // not apply, the page itself. Emits finished() when everything is done.
    Q_INVOKABLE void load();

    // The steps of load(), each calling its completion on the main thread.
    void loadAppStoreMetadata(std::function<void(bool applied)> completion);
    void loadHTMLMetadata(std::function<void()> completion);
    void loadImage(const QUrl &from, std::function<void()> completion);

    // The first quoted value of the attribute in a tag; unquoted values count as missing.
    static std::optional<QString> attribute(const QString &name, const QString &tag);
    // Named and numeric entities decoded by Qt's HTML importer.
    static QString decodeHTMLEntities(const QString &text);

Q_SIGNALS:
    void titleChanged();
    void siteNameChanged();
    void imageChanged();
    void hasLoadedChanged();
    void isLoadingChanged();
    void finished();

private:
    // Through the page fetcher, the one network session every preview shares.
    void fetch(const QUrl &url, int timeoutMs, bool browserIdentity,
               std::function<void(const PageFetchProtocol::Answer &)> handler);
    void setTitle(const QString &title);
    void setSiteName(const QString &siteName);

    const QUrl m_url;
    const AppStoreConfiguration m_appStore;
    QString m_title;
    QString m_siteName;
    QImage m_image;
    bool m_hasLoaded = false;
    bool m_isLoading = false;
    QList<quint32> m_fetches; // still waiting for an answer
};
