#pragma once

#include "platform/SoundPlayer.h"

#include <QObject>
#include <QString>

#include <optional>

namespace Sounds {
Q_NAMESPACE
// Stored by case name ("crystal", …) in the user's preferences.
enum class SoundPack { Crystal, Gentle, Classic, Playful };
Q_ENUM_NS(SoundPack)
} // namespace Sounds

using Sounds::SoundPack;

// Events 0 and 2 are kept for the preferences' previews.
enum class SoundEvent { Preview0 = 0, IncomingMessage = 1, Preview2 = 2, SignedIn = 3, Failure = 4 };

std::optional<SoundPack> soundPackFromRawValue(const QString &rawValue);
QString rawValue(SoundPack pack);
QString soundName(SoundPack pack, SoundEvent event);

// Chooses the sound for an event from the user's pack and plays it, unless the user
// turned sounds off. Previews name their pack and always sound.
class SoundManager
{
public:
    static SoundManager &shared();

    void setPlayer(SoundPlayer *player) { m_player = player; }
    bool isEnabled() const;
    void play(SoundEvent event, std::optional<SoundPack> previewPack = std::nullopt) const;

private:
    SoundPlayer *m_player = nullptr;
};
