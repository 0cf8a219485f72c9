// The preview card component: it loads once when it appears and shows what the
// page says, without the web engine.

#include "LoopbackHttpServer.h"

#include "StickerEngine.h"

#include <QBuffer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QStandardPaths>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

Q_IMPORT_QML_PLUGIN(Vost_RenderPlugin)

using namespace Qt::StringLiterals;

class LinkPreviewCardTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cardShowsThePage()
    {
        LoopbackHttpServer server;
        QVERIFY(server.isListening());
        QImage image(8, 8, QImage::Format_RGB32);
        image.fill(Qt::blue);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        server.answer("/page", {200, "text/html",
                                "<meta property=\"og:title\" content=\"Card title\">"
                                "<meta property=\"og:site_name\" content=\"Card site\">"
                                "<meta property=\"og:image\" content=\"/i.png\">"});
        server.answer("/i.png", {200, "image/png", png});

        QQmlEngine engine;
        VostRender::addImportPath(engine);
        QQmlComponent component(&engine);
        component.setData("import QtQuick\nimport Vost.Render\nMessageLinkPreview {}", QUrl(u"qrc:/test/Card.qml"_s));
        std::unique_ptr<QObject> card(component.createWithInitialProperties({{u"url"_s, server.url(u"/page"_s)}}));
        QVERIFY2(card, qPrintable(component.errorString()));
        QCOMPARE(card->property("title").toString(), u"127.0.0.1"_s);
        QTRY_COMPARE_WITH_TIMEOUT(card->property("title").toString(), u"Card title"_s, 30'000);
        QTRY_VERIFY_WITH_TIMEOUT(card->property("hasImage").toBool(), 30'000);
        QCOMPARE(card->property("siteName").toString(), u"Card site"_s);
        // Appearing again does not fetch again.
        card->setProperty("visible", false);
        card->setProperty("visible", true);
        QTRY_VERIFY_WITH_TIMEOUT(!card->property("isLoading").toBool(), 30'000);
        QCOMPARE(server.requestedPaths().count("/page"), 1);
    }
};

QTEST_MAIN(LinkPreviewCardTest)
#include "tst_linkpreviewcard.moc"
