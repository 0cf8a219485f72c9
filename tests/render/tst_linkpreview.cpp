// Link previews: the parsing helpers, and whole loads against a server on loopback.

#include "LoopbackHttpServer.h"

#include "render/LinkPreviewMetadata.h"

#include <QBuffer>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>

#include <zlib.h>

using namespace Qt::StringLiterals;

namespace {

QByteArray png(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

// A page that inflates to `size` bytes of spaces after a title.
QByteArray gzipBomb(qsizetype size)
{
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, 15 + 16, 9, Z_DEFAULT_STRATEGY);
    QByteArray out(size / 500 + 4096, Qt::Uninitialized);
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    QByteArray head = "<html><head><title>Bomb</title></head><body>";
    stream.next_in = reinterpret_cast<Bytef *>(head.data());
    stream.avail_in = uInt(head.size());
    deflate(&stream, Z_NO_FLUSH);
    QByteArray filler(1 << 20, ' ');
    for (qsizetype written = 0; written < size; written += filler.size()) {
        stream.next_in = reinterpret_cast<Bytef *>(filler.data());
        stream.avail_in = uInt(filler.size());
        deflate(&stream, Z_NO_FLUSH);
    }
    deflate(&stream, Z_FINISH);
    out.truncate(out.size() - qsizetype(stream.avail_out));
    deflateEnd(&stream);
    return out;
}

} // namespace

class LinkPreviewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.isListening());
        m_server.answer("/img/a.png", {200, "image/png", png(3, 2)});
        m_server.answer("/dir/favicon.png", {200, "image/png", png(16, 16)});
        m_server.answer("/art.png", {200, "image/png", png(100, 100)});
        m_server.answer("/fake.png", {200, "text/html", png(5, 5)});
    }

    void cleanup() { m_appStore = {}; }

    void attributes()
    {
        const QString tag = u"<meta Property=\"og:title\" content='It''s' name=bare data-x = \"1\">"_s;
        QCOMPARE(LinkPreviewMetadata::attribute(u"property"_s, tag), u"og:title"_s);
        QCOMPARE(LinkPreviewMetadata::attribute(u"PROPERTY"_s, tag), u"og:title"_s);
        QCOMPARE(LinkPreviewMetadata::attribute(u"content"_s, tag), u"It"_s);
        QCOMPARE(LinkPreviewMetadata::attribute(u"name"_s, tag), std::nullopt); // unquoted
        QCOMPARE(LinkPreviewMetadata::attribute(u"x"_s, tag), u"1"_s);
        QCOMPARE(LinkPreviewMetadata::attribute(u"a.b"_s, u"<meta aXb=\"no\">"_s), std::nullopt);
    }

    void entities()
    {
        QCOMPARE(LinkPreviewMetadata::decodeHTMLEntities(u"Tom &amp; Jerry &#8212; &eacute;t&eacute; &#x27;x&#39;"_s),
                 u"Tom & Jerry \u2014 \u00e9t\u00e9 'x'"_s);
        QCOMPARE(LinkPreviewMetadata::decodeHTMLEntities(u"plain"_s), u"plain"_s);
    }

    void lookupDecoding()
    {
        auto response = decodeAppStoreLookup(
            R"({"resultCount":2,"results":[{"trackName":"A","sellerName":null},{"trackName":"B","artworkUrl100":"x"}]})");
        QVERIFY(response);
        QCOMPARE(response->results.size(), 2);
        QCOMPARE(response->results[0].sellerName, std::nullopt);
        QCOMPARE(response->results[1].artworkUrl100, u"x"_s);
        QCOMPARE(decodeAppStoreLookup(R"({"results":[{"trackName":"A"},{"sellerName":"S"}]})"), std::nullopt);
        QCOMPARE(decodeAppStoreLookup(R"({"results":[{"trackName":"A","sellerName":5}]})"), std::nullopt);
        QCOMPARE(decodeAppStoreLookup(R"({"resultCount":0})"), std::nullopt);
        QCOMPARE(decodeAppStoreLookup("<html>"), std::nullopt);
        QVERIFY(decodeAppStoreLookup(R"({"results":[]})")->results.isEmpty());
    }

    void initialValues()
    {
        const LinkPreviewMetadata withHost(QUrl(u"https://www.example.com/a?b"_s));
        QCOMPARE(withHost.title(), u"www.example.com"_s);
        QCOMPARE(withHost.siteName(), u"www.example.com"_s);
        QVERIFY(!withHost.hasImage());
        QVERIFY(!withHost.hasLoaded());
        const LinkPreviewMetadata withoutHost(QUrl(u"mailto:me@example.com"_s));
        QCOMPARE(withoutHost.title(), u"mailto:me@example.com"_s);
    }

    void openGraphPage()
    {
        m_server.answer("/og", {200, "text/html; charset=utf-8",
                                "<html><head><title>Element title</title>\n"
                                "<META property=\"og:title\" content=\"Tom &amp; Jerry\">\n"
                                "<meta property='og:site_name' content='Example Site'>\n"
                                "<meta property=\"og:image\" content=\"/img/a.png\"></head></html>"});
        auto metadata = load(m_server.url(u"/og"_s));
        QCOMPARE(metadata->title(), u"Tom & Jerry"_s);
        QCOMPARE(metadata->siteName(), u"Example Site"_s);
        QCOMPARE(metadata->image().size(), QSize(3, 2));
        QVERIFY(metadata->hasLoaded());
        QVERIFY(!metadata->isLoading());
        const auto &requests = m_server.requests();
        const auto page =
            std::find_if(requests.cbegin(), requests.cend(), [](const auto &request) { return request.path == "/og"; });
        QVERIFY(page != requests.cend());
        QCOMPARE(page->headers.value("user-agent"),
                 "Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 Safari/605.1.15"_ba);
        QVERIFY(m_server.requestedPaths().contains("/img/a.png"));
    }

    // Which title and site name a page without a picture gives; the server's own
    // address stands in for what is missing.
    void titleAndSiteName_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("page");
        QTest::addColumn<QString>("title");
        QTest::addColumn<QString>("siteName");
        QTest::newRow("first and capital keys win")
            << 200
            << "<meta name=\"description\" content=\"d\">"
               "<meta property=\"OG:TITLE\" content=\"First\">"
               "<meta property=\"og:title\" content=\"Second\">"
               "<meta property=\"og:site_name\" content=\"\">" // an empty site name is not used
               "<title>Element</title>"_ba
            << u"First"_s << u"127.0.0.1"_s;
        QTest::newRow("title element only") << 200 << "<HTML><Title lang=en>\n  Plain &amp; simple\n</TITLE>"_ba
                                            << u"Plain & simple"_s << u"127.0.0.1"_s;
        QTest::newRow("not found keeps the host")
            << 404 << "<meta property=\"og:title\" content=\"Missing\">"_ba << u"127.0.0.1"_s << u"127.0.0.1"_s;
    }

    void titleAndSiteName()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, page);
        QFETCH(QString, title);
        QFETCH(QString, siteName);
        m_server.answer("/page", {status, "text/html", page});
        auto metadata = load(m_server.url(u"/page"_s));
        QCOMPARE(metadata->title(), title);
        QCOMPARE(metadata->siteName(), siteName);
        QVERIFY(!metadata->hasImage());
    }

    void shortcutIconBecomesTheThumbnail()
    {
        m_server.answer("/dir/page", {200, "text/html",
                                      "<link rel=\"stylesheet\" href=\"s.css\">"
                                      "<link rel=\"Shortcut Icon\" href=\"favicon.png\"><title>T</title>"});
        auto metadata = load(m_server.url(u"/dir/page"_s));
        QCOMPARE(metadata->title(), u"T"_s);
        QCOMPARE(metadata->image().size(), QSize(16, 16));
        QVERIFY(!m_server.requestedPaths().contains("/dir/s.css"));
    }

    // Pages often declare a charset they are not written in: the bytes decide.
    void titlesReadWhateverCharsetIsDeclared_data()
    {
        QTest::addColumn<QByteArray>("contentType");
        QTest::addColumn<QByteArray>("body");
        const QByteArray latin1 = "<title>Caf\xe9 cr\xe8me</title>";
        const QByteArray utf8 = "<title>Caf\xc3\xa9 cr\xc3\xa8me</title>";
        QTest::newRow("Latin-1 as declared") << "text/html; charset=iso-8859-1"_ba << latin1;
        QTest::newRow("Latin-1 declared as UTF-8") << "text/html; charset=utf-8"_ba << latin1;
        QTest::newRow("UTF-8 declared as Latin-1") << "text/html; charset=iso-8859-1"_ba << utf8;
        QTest::newRow("UTF-8 in a charset nobody knows") << "text/html; charset=x-no-such-charset"_ba << utf8;
    }

    void titlesReadWhateverCharsetIsDeclared()
    {
        QFETCH(QByteArray, contentType);
        QFETCH(QByteArray, body);
        m_server.answer("/charset", {200, contentType, body});
        auto metadata = load(m_server.url(u"/charset"_s));
        QCOMPARE(metadata->title(), u"Caf\u00e9 cr\u00e8me"_s);
    }

    void thumbnailMustBeAnImage()
    {
        m_server.answer("/fakeimage", {200, "text/html", "<meta property=\"og:image\" content=\"/fake.png\">"});
        auto metadata = load(m_server.url(u"/fakeimage"_s));
        QVERIFY(m_server.requestedPaths().contains("/fake.png"));
        QVERIFY(!metadata->hasImage());
    }

    void appStoreLookup()
    {
        m_appStore = {u"127.0.0.1"_s, m_server.url(u"/lookup?id="_s).toString()};
        m_server.answer(
            "/lookup?id=42",
            {200, "application/json",
             R"({"resultCount":1,"results":[{"trackName":"Vost","sellerName":"Vost Team","artworkUrl100":")" +
                 m_server.url(u"/art.png"_s).toEncoded() + R"("}]})"});
        auto metadata = load(m_server.url(u"/us/app/vost/id42?mt=8"_s));
        QCOMPARE(metadata->title(), u"Vost"_s);
        QCOMPARE(metadata->siteName(), u"Vost Team"_s);
        QCOMPARE(metadata->image().size(), QSize(100, 100));
        QVERIFY(!m_server.requestedPaths().contains("/us/app/vost/id42?mt=8")); // the page itself is not read

        m_server.answer("/lookup?id=43", {200, "application/json", R"({"results":[{"trackName":"Other"}]})"});
        metadata = load(m_server.url(u"/app/id43"_s));
        QCOMPARE(metadata->title(), u"Other"_s);
        QCOMPARE(metadata->siteName(), u"App Store"_s);
        QVERIFY(!metadata->hasImage());
    }

    void appStoreWithoutResultReadsThePage()
    {
        m_appStore = {u"127.0.0.1"_s, m_server.url(u"/lookup?id="_s).toString()};
        m_server.answer("/lookup?id=7", {200, "application/json", R"({"resultCount":0,"results":[]})"});
        m_server.answer("/app/id7", {200, "text/html", "<title>From the page</title>"});
        auto metadata = load(m_server.url(u"/app/id7"_s));
        QVERIFY(m_server.requestedPaths().contains("/lookup?id=7"));
        QCOMPARE(metadata->title(), u"From the page"_s);
    }

    void otherHostsAreNotLookedUp()
    {
        // The default store host: a loopback address is no app-store page.
        m_server.answer("/plain/id99", {200, "text/html", "<title>Plain</title>"});
        auto metadata = load(m_server.url(u"/plain/id99"_s));
        QCOMPARE(metadata->title(), u"Plain"_s);
        QVERIFY(!m_server.requestedPaths().contains("/lookup?id=99"));
    }

    void loadsOnce()
    {
        m_server.answer("/once", {200, "text/html", "<title>Once</title>"});
        auto metadata = load(m_server.url(u"/once"_s));
        QSignalSpy finished(metadata.get(), &LinkPreviewMetadata::finished);
        metadata->load();
        QCOMPARE(finished.count(), 0);
        QCOMPARE(m_server.requestedPaths().count("/once"), 1);
    }

    // Hostile servers: each load ends within its bounds and shows nothing.
    void hostileServers_data()
    {
        using Delivery = LoopbackHttpServer::Delivery;
        QTest::addColumn<QByteArray>("path");
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::addColumn<QList<QByteArray>>("headers");
        QTest::addColumn<int>("delivery");
        const QByteArray page = "<html><head><title>Hostile</title></head><body>" + QByteArray(4096, 'x');
        // First, while no stream of the rows below is still being served: the count of
        // redirects is read from what reached the server.
        QTest::newRow("redirects without end")
            << "/hop0"_ba << 302 << QByteArray() << QList<QByteArray>{"Location: /hop1"_ba} << int(Delivery::Whole);
        QTest::newRow("a byte now and then, forever")
            << "/drip"_ba << 200 << page << QList<QByteArray>{} << int(Delivery::Drip);
        QTest::newRow("a page without end")
            << "/endless"_ba << 200 << page << QList<QByteArray>{} << int(Delivery::Endless);
        QTest::newRow("50 MB") << "/huge"_ba << 200 << QByteArray(page + QByteArray(50 << 20, ' '))
                               << QList<QByteArray>{} << int(Delivery::Whole);
        QTest::newRow("gzip bomb") << "/bomb"_ba << 200 << gzipBomb(qsizetype(1) << 30)
                                   << QList<QByteArray>{"Content-Encoding: gzip"_ba} << int(Delivery::Whole);
    }

    void hostileServers()
    {
        QFETCH(QByteArray, path);
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        QFETCH(QList<QByteArray>, headers);
        QFETCH(int, delivery);
        m_server.answer(path,
                        {status, "text/html; charset=utf-8", body, headers, LoopbackHttpServer::Delivery(delivery)});
        // Each hop of the redirect chain has a path of its own, so that a request
        // Qt's network access sends again (when the server's close overtakes the
        // answer on a busy machine) does not count as one more redirect.
        constexpr int hops = LinkPreviewMetadata::maximumRedirects + 5;
        for (int hop = 1; path == "/hop0" && hop <= hops; ++hop)
            m_server.answer(hopPath(hop), {302, "text/html", {}, {"Location: " + hopPath(hop + 1)}});
        auto metadata = load(m_server.url(QString::fromLatin1(path)));
        QVERIFY(metadata->hasLoaded());
        // What a page that did not load shows: its host.
        QCOMPARE(metadata->title(), u"127.0.0.1"_s);
        QVERIFY(!metadata->hasImage());
        if (path == "/hop0") {
            // Every redirect is followed up to the limit, and no further.
            const QList<QByteArray> requested = m_server.requestedPaths();
            const QByteArray asked = requested.join(' ');
            QVERIFY2(requested.contains(hopPath(LinkPreviewMetadata::maximumRedirects)), asked.constData());
            QVERIFY2(!requested.contains(hopPath(LinkPreviewMetadata::maximumRedirects + 1)), asked.constData());
        }
    }

private:
    static QByteArray hopPath(int hop) { return "/hop" + QByteArray::number(hop); }

    std::unique_ptr<LinkPreviewMetadata> load(const QUrl &url)
    {
        auto metadata = std::make_unique<LinkPreviewMetadata>(url, m_appStore);
        QSignalSpy finished(metadata.get(), &LinkPreviewMetadata::finished);
        metadata->load();
        [&] { QVERIFY(finished.wait(30'000)); }();
        return metadata;
    }

    LoopbackHttpServer m_server;
    // Where the cards made by load() look up apps; each case starts with the default.
    AppStoreConfiguration m_appStore;
};

QTEST_MAIN(LinkPreviewTest)
#include "tst_linkpreview.moc"
