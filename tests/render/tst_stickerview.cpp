// The sticker page in the real web engine, played by the real sticker host: a
// Lottie animation of our own plays and its frames come back with their
// transparency, a decompression bomb is refused, a video sticker plays or, when it
// is no video, keeps its emoji, the page can reach no network, a view loads a new
// page only when the sticker's key changes, the web engine never enters this
// process, and the host goes when the last sticker has left or comes back after a
// crash. Needs a display (Xvfb in CI).

#include "../../demo/src/Gzip.h"
#include "../support/ChildProcesses.h"
#include "LoopbackHttpServer.h"

#include "StickerEngine.h"
#include "StickerHostClient.h"
#include "render/StickerPage.h"

#include <QFile>
#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QtQml/QQmlExtensionPlugin>

#include <chrono>
#include <csignal>
#include <cstdio>

Q_IMPORT_QML_PLUGIN(Vost_RenderPlugin)

using namespace Qt::StringLiterals;

namespace {

constexpr int waitMs = 60'000; // a generous bound for a slow machine; nothing is timed

// A red square that turns once a second.
const QByteArray animation =
    R"({"v":"5.7.4","fr":30,"ip":0,"op":30,"w":100,"h":100,"nm":"square","ddd":0,"assets":[],)"
    R"("layers":[{"ddd":0,"ind":1,"ty":4,"nm":"box","sr":1,"ip":0,"op":30,"st":0,"bm":0,)"
    R"("ks":{"o":{"a":0,"k":100},"r":{"a":1,"k":[{"t":0,"s":[0],"i":{"x":[0.5],"y":[0.5]},)"
    R"("o":{"x":[0.5],"y":[0.5]}},{"t":30,"s":[360]}]},"p":{"a":0,"k":[50,50,0]},"a":{"a":0,"k":[0,0,0]},)"
    R"("s":{"a":0,"k":[100,100,100]}},"shapes":[{"ty":"rc","nm":"r","d":1,"s":{"a":0,"k":[40,40]},)"
    R"("p":{"a":0,"k":[0,0]},"r":{"a":0,"k":4}},{"ty":"fl","nm":"f","c":{"a":0,"k":[1,0,0,1]},)"
    R"("o":{"a":0,"k":100},"r":1}]}]})";

// An item around one view, id "view", whose page can run a script: probe()
// leaves the answer in probeResult and then sets probed.
QByteArray probingHarness(const QByteArray &view)
{
    return R"(
import QtQuick
import Vost.Render
Item {
    width: 160; height: 160
    property bool probed: false
    property var probeResult
    function probe(script) {
        probed = false
        view.runJavaScript(script, function (result) { probeResult = result; probed = true })
    }
)" + view + "}\n";
}

const QByteArray harness = probingHarness(R"(
    property int loads: 0
    property alias sticker: view
    AnimatedStickerView { id: view; anchors.fill: parent; onPageLoaded: loads++ }
)");

const QByteArray bareViewHarness = probingHarness(R"(
    property bool loaded: false
    StickerHostView { id: view; anchors.fill: parent; onPageLoaded: loaded = true }
    function show(page) { loaded = false; view.show(page) }
)");

// One sticker as a message shows it, with its emoji standing in.
const QByteArray stickerHarness = R"(
import QtQuick
import Vost.Render
Item {
    width: 160; height: 160
    property alias sticker: sticker
    StickerView { id: sticker; anchors.fill: parent; format: Model.StickerFormat.Video; emoji: "🐱" }
}
)";

// A page that records a second of a changing canvas with the browser's own
// encoder: a real WebM, made where it will be played.
const QString recorderPage = uR"(<!doctype html><html><body><canvas id="c" width="64" height="64"></canvas>
<script>
const c = document.getElementById('c'), g = c.getContext('2d');
let t = 0;
setInterval(() => { g.fillStyle = t++ % 2 ? 'red' : 'blue'; g.fillRect(0, 0, 64, 64); }, 30);
const recorder = new MediaRecorder(c.captureStream(30), {mimeType: 'video/webm;codecs=vp8'});
const parts = [];
recorder.ondataavailable = e => parts.push(e.data);
recorder.onstop = () => {
    const reader = new FileReader();
    reader.onload = () => { window.recorded = reader.result.split(',')[1]; };
    reader.readAsDataURL(new Blob(parts, {type: 'video/webm'}));
};
recorder.start();
setTimeout(() => recorder.stop(), 1000);
</script></body></html>)"_s;

// Whether QtWebEngine has been loaded into a process.
bool webEngineLoaded(qint64 process)
{
    QFile maps(u"/proc/%1/maps"_s.arg(process));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("libQt6WebEngineCore");
}

bool processExists(qint64 process)
{
    return QFile::exists(u"/proc/%1"_s.arg(process));
}

StickerHostClient &host()
{
    return StickerHostClient::instance();
}

} // namespace

class StickerViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        VostRender::addImportPath(m_engine);
        // Blue shows through wherever a frame is transparent.
        m_window.setColor(Qt::blue);
        m_window.resize(480, 480);
        m_window.show();
    }

    // The web engine is never loaded here, whatever a case did.
    void cleanupTestCase() { QVERIFY(!webEngineLoaded(QCoreApplication::applicationPid())); }

    void cleanup()
    {
        delete m_root;
        m_root = nullptr;
    }

    void hostStartsOnlyForAPage()
    {
        QVERIFY(make(harness));
        m_root->setProperty("probeResult", 0);
        sticker()->setProperty("path", m_folder.filePath(u"missing.tgs"_s));
        QTest::qWait(300); // the update runs from the event loop
        QVERIFY(!host().isRunning());
        QCOMPARE(sticker()->property("pageKey").toString(), QString());
    }

    // The page plays in the host, and its frames come back to the view with their
    // transparency: the red square turns over the window's blue.
    void lottieAnimationPlays()
    {
        const QString path = write(u"square.tgs"_s, gzip(animation));
        QVERIFY(showAnimation(path));
        QVERIFY(host().isRunning());
        QVERIFY(webEngineLoaded(host().processId()));
        QTRY_COMPARE_WITH_TIMEOUT(
            probe(u"document.querySelectorAll('#sticker svg').length + ':' + document.body.innerText"_s),
            QVariant(u"1:"_s), waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(sticker()->property("frameCount").toInt() > 0, waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(qRed(m_window.grabWindow().pixel(80, 80)) > 200, waitMs);
        const QImage shown = m_window.grabWindow();
        QCOMPARE(QColor(shown.pixel(80, 80)).name(), u"#ff0000"_s);
        QCOMPARE(QColor(shown.pixel(4, 4)).name(), u"#0000ff"_s);
        QCOMPARE(QColor(shown.pixel(200, 200)).name(), u"#0000ff"_s); // outside the view
        // It turns: frames keep coming.
        const int frames = sticker()->property("frameCount").toInt();
        QTRY_VERIFY_WITH_TIMEOUT(sticker()->property("frameCount").toInt() > frames + 5, waitMs);
    }

    void decompressionBombIsRefused()
    {
        QByteArray padded = animation;
        padded.insert(1, QByteArray(StickerPage::maximumAnimationSize + 1000, ' '));
        const QString path = write(u"bomb.tgs"_s, gzip(padded));
        QVERIFY(showAnimation(path));
        QTRY_COMPARE_WITH_TIMEOUT(probe(u"document.getElementById('sticker').textContent"_s),
                                  QVariant(u"Sticker unavailable"_s), waitMs);
        QCOMPARE(probe(u"document.querySelectorAll('svg').length"_s).toInt(), 0);
    }

    void sameStickerLoadsOnceAndFormatChangeReloads()
    {
        const QString path = write(u"again.tgs"_s, gzip(animation));
        QVERIFY(showAnimation(path));
        // Redraws: the same path and format written again.
        sticker()->setProperty("path", path);
        sticker()->setProperty("format", 1);
        QTest::qWait(500);
        QCOMPARE(m_root->property("loads").toInt(), 1);
        QCOMPARE(sticker()->property("pageKey").toString(), StickerPage::key(path, StickerFormat::Animated));
        // The same file as a video sticker is a new page.
        sticker()->setProperty("format", 2);
        QTRY_COMPARE_WITH_TIMEOUT(m_root->property("loads").toInt(), 2, waitMs);
        QCOMPARE(sticker()->property("pageKey").toString(), StickerPage::key(path, StickerFormat::Video));
        QCOMPARE(probe(u"document.querySelectorAll('video').length"_s).toInt(), 1);
    }

    // A "video sticker" that is no video keeps its emoji and says it cannot play;
    // a real one replaces the emoji once its first frame is there.
    void videoStickerPlaysOrKeepsItsEmoji()
    {
        QVERIFY(make(bareViewHarness));
        QMetaObject::invokeMethod(m_root, "show", Q_ARG(QVariant, recorderPage));
        QTRY_VERIFY_WITH_TIMEOUT(m_root->property("loaded").toBool(), waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(probe(u"window.recorded ? window.recorded.length : 0"_s).toInt() > 0, waitMs);
        const QByteArray video = QByteArray::fromBase64(probe(u"window.recorded"_s).toString().toLatin1());
        QVERIFY(video.startsWith("\x1A\x45\xDF\xA3")); // the EBML header of a WebM file
        const QString real = write(u"real.webm"_s, video);
        QByteArray scrambled = video;
        for (qsizetype at = 0; at < scrambled.size(); at += 7)
            scrambled[at] = char(~scrambled[at]);
        const QString hostile = write(u"hostile.webm"_s, scrambled);
        delete m_root;

        const auto stateOf = [this] {
            QObject *page = sticker()->findChild<QObject *>(u"stickerPage"_s);
            return page ? page->property("playState").toInt() : -1;
        };
        for (const QString &path : {hostile, real, hostile}) {
            QVERIFY(make(stickerHarness));
            const auto *emoji = sticker()->findChild<QQuickItem *>(u"emoji"_s);
            QVERIFY(emoji);
            QVERIFY(emoji->isVisible());
            sticker()->setProperty("path", path);
            const bool plays = path == real;
            QTRY_COMPARE_WITH_TIMEOUT(stateOf(), plays ? 1 : 2, waitMs);
            QCOMPARE(sticker()->property("ready").toBool(), plays);
            QCOMPARE(emoji->isVisible(), !plays);
            delete m_root;
            m_root = nullptr;
        }
    }

    void pageCanReachNoNetwork()
    {
        LoopbackHttpServer server;
        QVERIFY(server.isListening());
        server.answer("/probe.png", {200, "image/png", QByteArray()});
        const QString origin = server.url(QString()).toString();
        // A script in the page tries a fetch, an image and a beacon.
        const QString attempt =
            u"<script>window.attempts=Promise.allSettled(["
            "fetch('%1/fetch',{mode:'no-cors'}),"
            "new Promise(r=>{const i=new Image();i.onload=i.onerror=r;i.src='%1/probe.png';}),"
            "new Promise(r=>{const x=new XMLHttpRequest();x.onloadend=r;try{x.open('GET','%1/xhr');x.send();}"
            "catch(e){r();}})]).then(()=>{window.attemptsDone=true;});</script></body></html>"_s.arg(origin);
        const QString page = *StickerPage::html(gzip(animation), StickerFormat::Animated);
        QString probing = page;
        probing.replace(u"</body></html>"_s, attempt);

        QVERIFY(make(bareViewHarness));
        QMetaObject::invokeMethod(m_root, "show", Q_ARG(QVariant, probing));
        QTRY_VERIFY_WITH_TIMEOUT(m_root->property("loaded").toBool(), waitMs);
        QTRY_COMPARE_WITH_TIMEOUT(probe(u"window.attemptsDone === true"_s), QVariant(true), waitMs);
        QCOMPARE(probe(u"document.querySelectorAll('#sticker svg').length"_s).toInt(), 1);
        QTest::qWait(300);
        QCOMPARE(server.requestedPaths(), QList<QByteArray>());

        // The same page without its security policy does reach the server, so the
        // check above can see a request when there is one.
        QString open = probing;
        const qsizetype start = open.indexOf(u"<meta http-equiv"_s);
        open.remove(start, open.indexOf(u'>', start) + 1 - start);
        QMetaObject::invokeMethod(m_root, "show", Q_ARG(QVariant, open));
        QTRY_VERIFY_WITH_TIMEOUT(m_root->property("loaded").toBool(), waitMs);
        QTRY_COMPARE_WITH_TIMEOUT(probe(u"window.attemptsDone === true"_s), QVariant(true), waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(!server.requests().isEmpty(), waitMs);
    }

    // A host that dies leaves its stickers unavailable, their emoji standing in,
    // and the next page starts a new one.
    void crashedHostIsReplaced()
    {
        const QString path = write(u"crash.tgs"_s, gzip(animation));
        QVERIFY(showAnimation(path));
        const qint64 crashed = host().processId();
        QVERIFY(crashed > 0);
        ::kill(pid_t(crashed), SIGKILL);
        QTRY_COMPARE_WITH_TIMEOUT(sticker()->property("playState").toInt(), 2, waitMs);
        QVERIFY(!host().isRunning());
        delete m_root;

        QVERIFY(showAnimation(path));
        QVERIFY(host().processId() != crashed);
        QTRY_VERIFY_WITH_TIMEOUT(sticker()->property("frameCount").toInt() > 0, waitMs);
    }

    // The host, and the web engine's processes with it, go a while after the last
    // sticker has left; a sticker that comes back in that while keeps it.
    void hostEndsAfterTheLastStickerLeaves()
    {
        using namespace std::chrono_literals;
        host().setLingerInterval(1500ms);
        const QString path = write(u"leaving.tgs"_s, gzip(animation));
        QVERIFY(showAnimation(path));
        const qint64 process = host().processId();
        const QList<qint64> children = ChildProcesses::of(process);
        QVERIFY2(!children.isEmpty(), "the web engine runs processes of its own");

        delete m_root;
        QVERIFY(showAnimation(path));
        QCOMPARE(host().processId(), process);

        delete m_root;
        m_root = nullptr;
        QTRY_VERIFY_WITH_TIMEOUT(!host().isRunning(), waitMs);
        QTRY_VERIFY_WITH_TIMEOUT(!processExists(process), waitMs);
        for (const qint64 child : children)
            QTRY_VERIFY_WITH_TIMEOUT(!processExists(child), waitMs);
        host().setLingerInterval(45s);
    }

private:
    // A new sticker view playing the Lottie sticker at path, once its page has loaded.
    bool showAnimation(const QString &path)
    {
        if (!make(harness))
            return false;
        sticker()->setProperty("format", 1);
        sticker()->setProperty("path", path);
        return QTest::qWaitFor([this] { return m_root->property("loads").toInt() == 1; }, waitMs);
    }

    bool make(const QByteArray &qml)
    {
        QQmlComponent component(&m_engine);
        component.setData(qml, QUrl(u"qrc:/test/Harness.qml"_s));
        m_root = qobject_cast<QQuickItem *>(component.create());
        if (!m_root) {
            qWarning().noquote() << component.errorString();
            return false;
        }
        m_root->setParentItem(m_window.contentItem());
        return true;
    }

    QObject *sticker() const { return m_root->property("sticker").value<QObject *>(); }

    QVariant probe(const QString &script)
    {
        QMetaObject::invokeMethod(m_root, "probe", Q_ARG(QVariant, script));
        if (!QTest::qWaitFor([this] { return m_root->property("probed").toBool(); }, waitMs))
            return u"no answer"_s;
        return m_root->property("probeResult");
    }

    QString write(const QString &name, const QByteArray &bytes)
    {
        const QString path = m_folder.filePath(name);
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(path));
        return path;
    }

    QTemporaryDir m_folder;
    QQmlEngine m_engine;
    QQuickWindow m_window;
    QQuickItem *m_root = nullptr;
};

int main(int argc, char *argv[])
{
    if (qEnvironmentVariable("QT_QPA_PLATFORM") == "xcb"_L1 && qEnvironmentVariableIsEmpty("DISPLAY")) {
        std::fputs("No display: run this test under xvfb-run.\n", stderr);
        return 77; // reported as skipped
    }
    VostRender::chooseSceneGraph();
    QGuiApplication application(argc, argv);
    StickerViewTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_stickerview.moc"
