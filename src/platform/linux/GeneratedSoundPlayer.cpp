#include "platform/linux/GeneratedSoundPlayer.h"

#include "bundle/AppBundle.h"
#include "bundle/HelperProcess.h"

#include <QFileInfo>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

// Notification sounds come one at a time, seconds apart; the helper starts in tens
// of milliseconds, so it need not stay long after one: the tray is what lasts.
constexpr std::chrono::seconds defaultLinger{3};
// A sound lasts a second at most; the helper ends once it has played.
constexpr std::chrono::seconds endingGrace{6};

} // namespace

GeneratedSoundPlayer::GeneratedSoundPlayer(QString folder)
    : m_folder(folder.isEmpty() ? AppBundle::main().resourcePath(u"sounds"_s) : std::move(folder))
{
    m_linger.setSingleShot(true);
    m_linger.setInterval(defaultLinger);
    connect(&m_linger, &QTimer::timeout, this, &GeneratedSoundPlayer::stop);
}

GeneratedSoundPlayer::~GeneratedSoundPlayer()
{
    // The last sound may still be playing as Vost quits: it gets a moment to end.
    stop();
    const QList<QProcess *> ending = findChildren<QProcess *>();
    for (QProcess *process : ending) {
        if (process->state() != QProcess::NotRunning && !process->waitForFinished(1000)) {
            process->kill();
            process->waitForFinished(1000);
        }
    }
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
    if (!file || (!isRunning() && !start()))
        return;
    m_process->write(file->toUtf8() + '\n');
    m_linger.start();
}

bool GeneratedSoundPlayer::isRunning() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

void GeneratedSoundPlayer::setLingerInterval(std::chrono::milliseconds interval)
{
    m_linger.setInterval(interval);
}

bool GeneratedSoundPlayer::start()
{
    stop();
    m_process = HelperProcess::start(u"vost-sound-player"_s, u"the sound player"_s, QProcess::ForwardedChannels, this);
    return m_process;
}

// Closing its input tells the helper to end once its sound has played.
void GeneratedSoundPlayer::stop()
{
    m_linger.stop();
    if (QProcess *process = std::exchange(m_process, nullptr))
        HelperProcess::end(process, endingGrace);
}

std::unique_ptr<SoundPlayer> makeSystemSoundPlayer()
{
    return std::make_unique<GeneratedSoundPlayer>();
}
