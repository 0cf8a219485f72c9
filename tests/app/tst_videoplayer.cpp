// The video widget of a bubble makes its media player (GStreamer, which stays
// loaded for good once in the process) only for what is still a video once the
// bubble's values have settled: never for the sticker a reused bubble showed
// before it became a GIF, and the GIF's image gets no sticker to read either, nor
// the file of the message a bubble shows next.

#include "StickerEngine.h"

#include <QFile>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

#include <memory>

Q_IMPORT_QML_PLUGIN(Vost_AppPlugin)
Q_IMPORT_QML_PLUGIN(Vost_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Vost_RenderPlugin)

using namespace Qt::StringLiterals;

namespace {

bool mediaFrameworkLoaded()
{
    QFile maps(u"/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/libgst");
}

} // namespace

class VideoPlayerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { VostRender::addImportPath(m_engine); }

    void noPlayerForWhatAReusedBubbleShowedBefore()
    {
        QVERIFY(!mediaFrameworkLoaded());
        QTest::failOnWarning(QRegularExpression(u"1\\.tgs"_s));
        // A reused bubble turned into a GIF: the video widget is made while the
        // path and details are still the sticker's; the GIF's arrive right after.
        std::unique_ptr<QQuickItem> reused = make({{u"path"_s, u"/nonexistent/stickers/1.tgs"_s},
                                                   {u"details"_s, QVariantMap{{u"minithumbnail"_s, QString()}}}});
        QVERIFY(reused);
        QVERIFY(reused->property("needsPlayer").toBool()); // a video, as far as it knows yet
        reused->setProperty("details", QVariantMap{{u"mimeType"_s, u"image/gif"_s}, {u"minithumbnail"_s, QString()}});
        reused->setProperty("path", u"/nonexistent/animations/clip.gif"_s);
        QTest::qWait(100);
        QVERIFY(!reused->property("playerWanted").toBool());
        QVERIFY(reused->property("imageWanted").toBool());
        QVERIFY(!mediaFrameworkLoaded());
    }

    void noFileOfTheNextMessageForAGifGoingAway()
    {
        QTest::failOnWarning(QRegularExpression(u"voice_note"_s));
        std::unique_ptr<QQuickItem> reused = make({{u"path"_s, u"/nonexistent/animations/clip.gif"_s},
                                                   {u"isAnimation"_s, true},
                                                   {u"details"_s, QVariantMap{{u"mimeType"_s, u"image/gif"_s}}}});
        QVERIFY(reused);
        QTRY_VERIFY(reused->property("imageWanted").toBool());
        // Reused for a voice note: its path comes just before the bubble drops the widget.
        reused->setProperty("path", u"/nonexistent/voice/voice_note.oga"_s);
        reused->setProperty("details", QVariantMap{{u"mimeType"_s, u"audio/ogg"_s}});
        reused.reset();
        QTest::qWait(50);
        QVERIFY(!mediaFrameworkLoaded());
    }

private:
    std::unique_ptr<QQuickItem> make(const QVariantMap &properties)
    {
        QQmlComponent component(&m_engine, QUrl(u"qrc:/qt/qml/Vost/App/qml/messages/VideoPlayer.qml"_s));
        if (!component.isReady()) {
            qWarning() << component.errors();
            return nullptr;
        }
        std::unique_ptr<QObject> object(component.createWithInitialProperties(properties));
        return std::unique_ptr<QQuickItem>(qobject_cast<QQuickItem *>(object.release()));
    }

    QQmlEngine m_engine;
};

QTEST_MAIN(VideoPlayerTest)
#include "tst_videoplayer.moc"
