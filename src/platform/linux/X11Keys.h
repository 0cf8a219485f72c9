#pragma once

#include <QList>
#include <Qt>

#include <cstdint>
#include <optional>

// How a Qt key combination reads in the X11 core protocol: the keysym to look up in
// the keyboard mapping and the modifier masks a grab has to cover.
namespace X11Keys {

// The core protocol's modifier bits.
constexpr uint16_t shiftMask = 1 << 0;
constexpr uint16_t lockMask = 1 << 1;
constexpr uint16_t controlMask = 1 << 2;
constexpr uint16_t mod1Mask = 1 << 3; // Alt
constexpr uint16_t mod2Mask = 1 << 4; // NumLock on most keyboards
constexpr uint16_t mod4Mask = 1 << 6; // Super, which Qt calls Meta
// The bits a shortcut can be made of; the locks are left out when matching.
constexpr uint16_t shortcutMask = shiftMask | controlMask | mod1Mask | mod4Mask;
constexpr uint32_t numLockKeysym = 0xff7f;

// The keysym of a key Qt names; letters as their lower-case keysym, which is the
// first one of their key. None for keys that have no keysym of their own here
// (modifier keys, keys Qt made up).
std::optional<uint32_t> keysym(Qt::Key key);
// The modifier bits of Ctrl, Alt, Meta and Shift; other modifiers are not kept.
uint16_t modifierMask(Qt::KeyboardModifiers modifiers);
// The masks to grab so that the combination works whether Caps Lock or Num Lock
// is on: the mask alone, with either lock and with both. numLockMask 0 leaves Num
// Lock out (no key of the keyboard is Num Lock).
QList<uint16_t> grabMasks(uint16_t mask, uint16_t numLockMask);

} // namespace X11Keys
