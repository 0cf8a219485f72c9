#pragma once

#include "tdlib/TdJson.h"

#include <QString>

#include <optional>

class SoundManager;
enum class SoundEvent;

// What the user hears and sees of events: every incoming message in a chat that
// is not muted gets a desktop notification (unless the user turned them off) and
// the sound pack's sound, whichever chat is open; signing in and failures sound.
class Announcer
{
public:
    // The shared sound manager unless set.
    Announcer();

    void setSoundManager(const SoundManager *soundManager) { m_soundManager = soundManager; }
    void play(SoundEvent event) const;
    // listedTitle: the chat's title while the chat is in the list.
    void announceMessage(const TdObject &message, bool muted, const std::optional<QString> &listedTitle) const;

private:
    const SoundManager *m_soundManager;
};
