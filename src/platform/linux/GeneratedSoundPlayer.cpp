#include "platform/linux/GeneratedSoundPlayer.h"

#include "tdlib/AppBundle.h"

#include <QAudioDevice>
#include <QFileInfo>
#include <QMediaDevices>
#include <QSoundEffect>
#include <QUrl>

#include <atomic>

using namespace Qt::StringLiterals;

namespace {

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

} // namespace

GeneratedSoundPlayer::GeneratedSoundPlayer(QString folder)
    : m_folder(folder.isEmpty() ? AppBundle::main().resourcePath(u"sounds"_s) : std::move(folder))
{}

GeneratedSoundPlayer::~GeneratedSoundPlayer()
{
    qDeleteAll(m_effects);
}

const QStringList &GeneratedSoundPlayer::soundNames()
{
    static const QStringList names{
        u"Tink"_s, u"Glass"_s, u"Ping"_s,  u"Hero"_s,   u"Basso"_s,     u"Pop"_s,    u"Purr"_s,
        u"Blow"_s, u"Funk"_s,  u"Morse"_s, u"Sosumi"_s, u"Submarine"_s, u"Bottle"_s, u"Frog"_s,
    };
    return names;
}

std::optional<QString> GeneratedSoundPlayer::soundFile(const QString &name) const
{
    // Only our own names, so a name never reaches outside the folder.
    if (!soundNames().contains(name))
        return std::nullopt;
    const QString path = m_folder + u'/' + name + ".wav"_L1;
    if (!QFileInfo(path).isFile())
        return std::nullopt;
    return path;
}

void GeneratedSoundPlayer::play(const QString &name)
{
    const std::optional<QString> file = soundFile(name);
    if (!file)
        return;
    // No audio device: silent. Asked on every play, since one may come later.
    if (!hasAudioOutput())
        return;
    QSoundEffect *&effect = m_effects[name];
    if (!effect) {
        effect = new QSoundEffect;
        effect->setSource(QUrl::fromLocalFile(*file));
    }
    effect->play();
}

std::unique_ptr<SoundPlayer> makeSystemSoundPlayer()
{
    return std::make_unique<GeneratedSoundPlayer>();
}
