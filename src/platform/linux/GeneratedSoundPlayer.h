#pragma once

#include "platform/SoundPlayer.h"

#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <optional>

class QProcess;

// Plays the named short sounds that the build generates into the resource folder's
// "sounds" folder. They play in the sound player, a helper process that starts with
// a sound and ends once none has been asked for a little while, so the audio system
// never stays in Vost. Without an audio device it is silent.
class GeneratedSoundPlayer : public QObject, public SoundPlayer
{
    Q_OBJECT

public:
    // folder: where <Name>.wav are; by default the application's resource folder.
    explicit GeneratedSoundPlayer(QString folder = {});
    ~GeneratedSoundPlayer() override;

    void play(const QString &name) override;

    // The names we ship a sound for.
    static const QStringList &soundNames();
    // The file of a named sound; none for a name we do not ship or a missing file.
    std::optional<QString> soundFile(const QString &name) const;

    bool isRunning() const;
    // How long the helper stays after the last sound.
    void setLingerInterval(std::chrono::milliseconds interval);

private:
    bool start();
    void stop();

    QString m_folder;
    QPointer<QProcess> m_process;
    QTimer m_linger;
};
