// What it costs to play animated stickers: the native player (rlottie) against
// the isolated web page (QtWebEngine, in the sticker host). Each player runs in a
// process of its own, started by this program, which shows a window of N stickers
// for a few seconds and prints the process tree's memory (PSS) before the window,
// with the stickers playing, and the CPU time the tree took, then what is left a
// minute after they have gone. Needs a display (xvfb-run).
//
//   bench-stickerplayers [N]          both players, N stickers (default 12)
//   bench-stickerplayers native|web N one player, in this process

#include "../demo/src/Gzip.h"
#include "ProcessMemory.h"
#include "StickerEngine.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QGuiApplication>
#include <QProcess>
#include <QQmlApplicationEngine>
#include <QQmlContext>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QtQml/qqmlextensionplugin.h>

#include <unistd.h>

Q_IMPORT_QML_PLUGIN(Vost_RenderPlugin)

using namespace Qt::StringLiterals;

namespace {

// A bouncing ball of 60 frames, the size of a Telegram sticker's canvas.
QByteArray sticker(int seed)
{
    const QString ease = u"\"i\":{\"x\":[0.5],\"y\":[0.5]},\"o\":{\"x\":[0.5],\"y\":[0.5]}"_s;
    return gzip(u"{\"v\":\"5.5.2\",\"fr\":60,\"ip\":0,\"op\":60,\"w\":512,\"h\":512,\"layers\":[{\"ty\":4,\"ind\":1,"
                "\"ip\":0,\"op\":60,\"st\":0,\"ks\":{\"o\":{\"a\":0,\"k\":100},\"r\":{\"a\":0,\"k\":0},"
                "\"p\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[256,380,0],%1},{\"t\":30,\"s\":[256,140,0],%1},"
                "{\"t\":60,\"s\":[256,380,0]}]},\"a\":{\"a\":0,\"k\":[0,0,0]},\"s\":{\"a\":0,\"k\":[100,100,100]}},"
                "\"shapes\":[{\"ty\":\"el\",\"p\":{\"a\":0,\"k\":[0,0]},\"s\":{\"a\":0,\"k\":[220,220]}},"
                "{\"ty\":\"fl\",\"c\":{\"a\":0,\"k\":[%2,0.4,0.8,1]},\"o\":{\"a\":0,\"k\":100}}]}]}"_s.arg(ease)
                    .arg((seed % 10) / 10.0)
                    .toUtf8());
}

int runOne(const QString &player, int count)
{
    const bool web = player == u"web"_s;
    VostRender::chooseSceneGraph();
    int argc = 1;
    char name[] = "bench-stickerplayers";
    char *argv[] = {name, nullptr};
    QGuiApplication application(argc, argv);
    QTemporaryDir folder;
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        QFile file(folder.filePath(u"sticker%1.tgs"_s.arg(i)));
        if (!file.open(QIODevice::WriteOnly))
            return 1;
        file.write(sticker(i));
        paths.append(file.fileName());
    }
    const qint64 before = ProcessMemory::treePss(getpid());
    QQmlApplicationEngine engine;
    VostRender::addImportPath(engine);
    engine.rootContext()->setContextProperty(u"stickerPaths"_s, paths);
    engine.rootContext()->setContextProperty(u"useWebPage"_s, web);
    engine.loadData(R"(
        import QtQuick
        import Vost.Render
        Window {
            width: 700; height: 500; visible: true
            Flow {
                anchors.fill: parent
                Repeater {
                    model: stickerPaths
                    delegate: Item {
                        required property string modelData
                        width: 160; height: 160
                        Loader {
                            anchors.fill: parent
                            sourceComponent: useWebPage ? webPage : nativePlayer
                            Component { id: nativePlayer; StickerPlayer { path: modelData } }
                            Component { id: webPage; AnimatedStickerView { path: modelData; format: Model.StickerFormat.Animated } }
                        }
                    }
                }
            }
        })");
    if (engine.rootObjects().isEmpty())
        return 1;
    // Let the players start (the web engine's processes take a while), then measure
    // a stretch of steady playing.
    QEventLoop settle;
    QTimer::singleShot(web ? 8000 : 2000, &settle, &QEventLoop::quit);
    settle.exec();
    const double cpuBefore = ProcessMemory::treeCpuSeconds(getpid());
    QElapsedTimer clock;
    clock.start();
    QEventLoop play;
    QTimer::singleShot(5000, &play, &QEventLoop::quit);
    play.exec();
    const double cpu = ProcessMemory::treeCpuSeconds(getpid()) - cpuBefore;
    const qint64 playing = ProcessMemory::treePss(getpid());
    QTextStream(stdout) << player << ' ' << count << " stickers: PSS before " << before / 1024 << " MB, playing "
                        << playing / 1024 << " MB (+" << (playing - before) / 1024 << " MB), CPU "
                        << QString::number(cpu / (double(clock.elapsed()) / 1000.0) * 100.0, 'f', 1)
                        << " % of one core\n";
    // What stays once the last sticker has left the screen, a minute later.
    engine.rootContext()->setContextProperty(u"stickerPaths"_s, QStringList());
    QEventLoop gone;
    QTimer::singleShot(60'000, &gone, &QEventLoop::quit);
    gone.exec();
    QTextStream(stdout) << player << ' ' << count << " stickers: a minute after they left, PSS "
                        << ProcessMemory::treePss(getpid()) / 1024 << " MB, "
                        << ProcessMemory::descendantCount(getpid()) << " child processes\n";
    return 0;
}

} // namespace

int main(int argc, char *argv[])
{
    const QStringList arguments = [&] {
        QStringList list;
        for (int i = 1; i < argc; ++i)
            list.append(QString::fromLocal8Bit(argv[i]));
        return list;
    }();
    if (!arguments.isEmpty() && (arguments.first() == u"native"_s || arguments.first() == u"web"_s))
        return runOne(arguments.first(), arguments.value(1, u"12"_s).toInt());
    const QString count = arguments.value(0, u"12"_s);
    for (const QString &player : {u"native"_s, u"web"_s}) {
        QProcess child;
        child.setProcessChannelMode(QProcess::ForwardedChannels);
        child.start(QString::fromLocal8Bit(argv[0]), {player, count});
        child.waitForFinished(180'000);
    }
    return 0;
}
