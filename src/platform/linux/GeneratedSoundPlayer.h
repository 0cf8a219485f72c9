#pragma once

#include "platform/SoundPlayer.h"

#include <QHash>
#include <QStringList>

#include <memory>
#include <optional>

class QSoundEffect;

// Plays the named short sounds that the build generates into the resource folder's
// "sounds" folder, through Qt Multimedia. Each sound is loaded on its first play.
// Without an audio device it stays silent.
class GeneratedSoundPlayer : public SoundPlayer
{
public:
    // folder: where <Name>.wav are; by default the application's resource folder.
    explicit GeneratedSoundPlayer(QString folder = {});
    ~GeneratedSoundPlayer() override;

    void play(const QString &name) override;

    // The names we ship a sound for.
    static const QStringList &soundNames();
    // The file of a named sound; none for a name we do not ship or a missing file.
    std::optional<QString> soundFile(const QString &name) const;

private:
    QString m_folder;
    QHash<QString, QSoundEffect *> m_effects;
};
