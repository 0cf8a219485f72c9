#include "Preferences.h"

#include "session/UserDefaults.h"

#include <QKeySequence>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

const QString soundsEnabledKey = u"soundsEnabled"_s;
const QString soundPackKey = u"soundPack"_s;
const QString showNotificationsKey = u"showNotifications"_s;
const QString checkSpellingKey = u"checkSpelling"_s;
const QString globalShortcutKey = u"globalShortcut"_s;

// Only a stored boolean false counts as off. The settings file keeps booleans as
// the words true and false, so those words count as booleans.
bool storedFlag(const QString &key)
{
    const QVariant stored = UserDefaults::value(key);
    if (stored.typeId() == QMetaType::Bool)
        return stored.toBool();
    return stored.typeId() != QMetaType::QString || stored.toString() != "false"_L1;
}

// Stores a flag; whether that changed what is stored.
bool storeFlag(const QString &key, bool value)
{
    if (value == storedFlag(key) && UserDefaults::value(key).isValid())
        return false;
    UserDefaults::setValue(key, value);
    return true;
}

} // namespace

Preferences &Preferences::shared()
{
    static Preferences *preferences = new Preferences;
    return *preferences;
}

bool Preferences::soundsEnabled() const
{
    return storedFlag(soundsEnabledKey);
}

void Preferences::setSoundsEnabled(bool enabled)
{
    if (storeFlag(soundsEnabledKey, enabled))
        Q_EMIT soundsEnabledChanged();
}

SoundPack Preferences::soundPack() const
{
    return soundPackFromRawValue(UserDefaults::value(soundPackKey).toString()).value_or(SoundPack::Crystal);
}

void Preferences::setSoundPackName(const QString &name)
{
    const std::optional<SoundPack> pack = soundPackFromRawValue(name);
    if (!pack || (*pack == soundPack() && UserDefaults::value(soundPackKey).toString() == name))
        return;
    UserDefaults::setValue(soundPackKey, rawValue(*pack));
    Q_EMIT soundPackChanged();
}

QStringList Preferences::soundPacks() const
{
    return {rawValue(SoundPack::Crystal), rawValue(SoundPack::Gentle), rawValue(SoundPack::Classic),
            rawValue(SoundPack::Playful)};
}

bool Preferences::showsNotifications() const
{
    return storedFlag(showNotificationsKey);
}

void Preferences::setShowsNotifications(bool shown)
{
    if (storeFlag(showNotificationsKey, shown))
        Q_EMIT showsNotificationsChanged();
}

bool Preferences::checksSpelling() const
{
    return storedFlag(checkSpellingKey);
}

void Preferences::setChecksSpelling(bool checks)
{
    if (storeFlag(checkSpellingKey, checks))
        Q_EMIT checksSpellingChanged();
}

QString Preferences::globalShortcut() const
{
    return normalizedShortcut(UserDefaults::value(globalShortcutKey).toString());
}

QString Preferences::globalShortcutLabel() const
{
    return QKeySequence::fromString(globalShortcut(), QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

void Preferences::setGlobalShortcut(const QString &shortcut)
{
    const QString normalized = normalizedShortcut(shortcut);
    if ((normalized.isEmpty() && !shortcut.trimmed().isEmpty()) || normalized == globalShortcut())
        return;
    UserDefaults::setValue(globalShortcutKey, normalized);
    Q_EMIT globalShortcutChanged();
}

QString Preferences::shortcutForKeyPress(int key, int modifiers)
{
    constexpr Qt::KeyboardModifiers kept = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier | Qt::ShiftModifier;
    const Qt::KeyboardModifiers held = Qt::KeyboardModifiers::fromInt(modifiers) & kept;
    if ((held & ~Qt::KeyboardModifiers(Qt::ShiftModifier)) == Qt::NoModifier)
        return {};
    switch (key) {
    case 0:
    case Qt::Key_unknown:
    case Qt::Key_Shift:
    case Qt::Key_Control:
    case Qt::Key_Meta:
    case Qt::Key_Alt:
    case Qt::Key_AltGr:
    case Qt::Key_Super_L:
    case Qt::Key_Super_R:
    case Qt::Key_Hyper_L:
    case Qt::Key_Hyper_R:
    case Qt::Key_CapsLock:
    case Qt::Key_NumLock:
    case Qt::Key_ScrollLock:
        return {};
    default:
        break;
    }
    return QKeySequence(QKeyCombination(held, Qt::Key(key))).toString(QKeySequence::PortableText);
}

QString Preferences::normalizedShortcut(const QString &text)
{
    const QKeySequence sequence = QKeySequence::fromString(text.trimmed(), QKeySequence::PortableText);
    if (sequence.count() != 1)
        return {};
    const QKeyCombination first = sequence[0];
    return shortcutForKeyPress(first.key(), int(first.keyboardModifiers().toInt()));
}

void Preferences::previewSoundPack(const QString &name)
{
    const std::optional<SoundPack> pack = soundPackFromRawValue(name);
    if (!pack)
        return;
    SoundManager::shared().play(SoundEvent::Preview0, *pack);
    // The second sound once the first has had its moment.
    QTimer::singleShot(450, this, [pack] { SoundManager::shared().play(SoundEvent::Preview2, *pack); });
}
