#pragma once

#include <QString>

// Plays one of the named short sounds ("Glass", "Basso", ...); an unknown name
// plays nothing.
class SoundPlayer
{
public:
    virtual ~SoundPlayer() = default;
    virtual void play(const QString &name) = 0;
};
