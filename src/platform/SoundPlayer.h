#pragma once

#include <QString>

#include <memory>

// Plays one of the named short sounds ("Glass", "Basso", ...); an unknown name
// plays nothing.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    virtual void play(const QString &name) = 0;
};

// The platform's player of the named sounds. Without an audio device it is silent.
std::unique_ptr<SoundPlayer> makeSystemSoundPlayer();
