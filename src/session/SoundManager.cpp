#include "session/SoundManager.h"

#include "session/ModelNames.h"
#include "session/Preferences.h"

#include <array>

std::optional<SoundPack> soundPackFromRawValue(const QString &value)
{
    return caseFromName<SoundPack>(value);
}

QString rawValue(SoundPack pack)
{
    return caseName(pack);
}

QString soundName(SoundPack pack, SoundEvent event)
{
    using Row = std::array<const char *, 5>;
    static constexpr std::array<Row, 4> table = {{
        {"Tink", "Glass", "Ping", "Hero", "Basso"},
        {"Pop", "Purr", "Blow", "Glass", "Funk"},
        {"Morse", "Sosumi", "Submarine", "Hero", "Basso"},
        {"Pop", "Funk", "Bottle", "Ping", "Frog"},
    }};
    return QString::fromLatin1(table[static_cast<size_t>(pack)][static_cast<size_t>(event)]);
}

SoundManager &SoundManager::shared()
{
    static SoundManager manager;
    return manager;
}

bool SoundManager::isEnabled() const
{
    return Preferences::shared().soundsEnabled();
}

void SoundManager::play(SoundEvent event, std::optional<SoundPack> previewPack) const
{
    SoundPack pack = SoundPack::Crystal;
    if (previewPack) {
        pack = *previewPack;
    } else {
        if (!isEnabled())
            return;
        pack = Preferences::shared().soundPack();
    }
    if (m_player)
        m_player->play(soundName(pack, event));
}
