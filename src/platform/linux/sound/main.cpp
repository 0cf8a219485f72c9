// vost-sound-player: plays Vost's short sounds in a process of its own, so that the
// audio system (the sound server's connection, its threads and buffers) is never
// loaded into Vost, which lives in the tray all day. Vost starts it with a sound
// and closes its input once none has been asked for a little while.
//
// Each line on standard input is the path of a sound file to play. Without an audio
// device it plays nothing. It ends when its input ends, once what plays has finished.

#include <QAudioDevice>
#include <QCoreApplication>
#include <QFileInfo>
#include <QHash>
#include <QMediaDevices>
#include <QSocketNotifier>
#include <QSoundEffect>
#include <QTimer>
#include <QUrl>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace {

// Our paths are short; a longer line is not one of them.
constexpr qsizetype maximumLineLength = 4096;
// Our sounds last a second at most: a player still busy this long after its input
// ended is stuck.
constexpr int finishingLimitMs = 5000;

std::atomic<QtMessageHandler> forwardedHandler = nullptr;
thread_local bool startingAudio = false;

void quietWhileStartingAudio(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    // Other threads' messages go on as before.
    const QtMessageHandler forward = forwardedHandler.load();
    if (!startingAudio && forward)
        forward(type, context, message);
}

// Whether there is a device to play on. The first question starts Qt's audio system,
// which reports a missing sound server as a warning; no audio device is an ordinary
// case for us, so that start-up is kept quiet.
bool hasAudioOutput()
{
    static bool started = false;
    if (!started) {
        started = true;
        startingAudio = true;
        forwardedHandler = qInstallMessageHandler(quietWhileStartingAudio);
        const bool found = !QMediaDevices::defaultAudioOutput().isNull();
        qInstallMessageHandler(forwardedHandler);
        startingAudio = false;
        return found;
    }
    return !QMediaDevices::defaultAudioOutput().isNull();
}

class Player
{
public:
    ~Player() { qDeleteAll(m_effects); }

    void play(const QString &path)
    {
        if (!QFileInfo(path).isFile() || !hasAudioOutput())
            return;
        QSoundEffect *&effect = m_effects[path];
        if (!effect) {
            effect = new QSoundEffect;
            effect->setSource(QUrl::fromLocalFile(path));
        }
        effect->play();
    }

    // Ends the program once nothing plays any more.
    void finish()
    {
        if (!isPlaying())
            return QCoreApplication::quit();
        auto *poll = new QTimer(QCoreApplication::instance());
        QObject::connect(poll, &QTimer::timeout, poll, [this] {
            if (!isPlaying())
                QCoreApplication::quit();
        });
        poll->start(50);
        QTimer::singleShot(finishingLimitMs, QCoreApplication::instance(), &QCoreApplication::quit);
    }

private:
    // A sound asked for just before the input ended may still be loading.
    bool isPlaying() const
    {
        return std::any_of(m_effects.cbegin(), m_effects.cend(), [](const QSoundEffect *effect) {
            return effect->isPlaying() || effect->status() == QSoundEffect::Loading;
        });
    }

    QHash<QString, QSoundEffect *> m_effects;
};

// Cuts the input into lines; a line too long to be a path is dropped whole.
class LineReader
{
public:
    QList<QByteArray> append(const QByteArray &bytes)
    {
        QList<QByteArray> lines;
        m_buffer += bytes;
        qsizetype newline;
        while ((newline = m_buffer.indexOf('\n')) >= 0) {
            if (!m_skipping)
                lines.append(m_buffer.left(newline));
            m_skipping = false;
            m_buffer.remove(0, newline + 1);
        }
        if (m_buffer.size() > maximumLineLength) {
            m_buffer.clear();
            m_skipping = true;
        }
        return lines;
    }

private:
    QByteArray m_buffer;
    bool m_skipping = false;
};

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("vost-sound-player"));
    if (argc != 1 || isatty(STDIN_FILENO)) {
        std::fputs("usage: vost-sound-player (Vost starts it and talks to it through a pipe)\n", stderr);
        return 2;
    }
    Player player;
    LineReader reader;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        char buffer[16 * 1024];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            return;
        if (count <= 0) {
            input.setEnabled(false);
            player.finish();
            return;
        }
        for (const QByteArray &line : reader.append(QByteArray(buffer, count))) {
            if (!line.isEmpty() && !line.contains('\0')) // no path holds a NUL
                player.play(QString::fromUtf8(line));
        }
    });
    return application.exec();
}
