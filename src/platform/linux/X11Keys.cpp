#include "X11Keys.h"

namespace X11Keys {

std::optional<uint32_t> keysym(Qt::Key key)
{
    // Latin-1 keys carry their keysym as their code; letters are looked up lower-case.
    if (key >= Qt::Key_A && key <= Qt::Key_Z)
        return uint32_t(key - Qt::Key_A + 'a');
    if ((key >= Qt::Key_Space && key <= Qt::Key_AsciiTilde) ||
        (key >= Qt::Key_nobreakspace && key <= Qt::Key_ydiaeresis))
        return uint32_t(key);
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return uint32_t(0xffbe + (key - Qt::Key_F1));
    switch (key) {
    case Qt::Key_Escape:
        return 0xff1b;
    case Qt::Key_Tab:
        return 0xff09;
    case Qt::Key_Backspace:
        return 0xff08;
    case Qt::Key_Return:
        return 0xff0d;
    case Qt::Key_Enter:
        return 0xff8d;
    case Qt::Key_Insert:
        return 0xff63;
    case Qt::Key_Delete:
        return 0xffff;
    case Qt::Key_Pause:
        return 0xff13;
    case Qt::Key_Print:
        return 0xff61;
    case Qt::Key_Home:
        return 0xff50;
    case Qt::Key_Left:
        return 0xff51;
    case Qt::Key_Up:
        return 0xff52;
    case Qt::Key_Right:
        return 0xff53;
    case Qt::Key_Down:
        return 0xff54;
    case Qt::Key_PageUp:
        return 0xff55;
    case Qt::Key_PageDown:
        return 0xff56;
    case Qt::Key_End:
        return 0xff57;
    case Qt::Key_Menu:
        return 0xff67;
    default:
        return std::nullopt;
    }
}

uint16_t modifierMask(Qt::KeyboardModifiers modifiers)
{
    uint16_t mask = 0;
    if (modifiers.testFlag(Qt::ShiftModifier))
        mask |= shiftMask;
    if (modifiers.testFlag(Qt::ControlModifier))
        mask |= controlMask;
    if (modifiers.testFlag(Qt::AltModifier))
        mask |= mod1Mask;
    if (modifiers.testFlag(Qt::MetaModifier))
        mask |= mod4Mask;
    return mask;
}

QList<uint16_t> grabMasks(uint16_t mask, uint16_t numLockMask)
{
    QList<uint16_t> masks{mask, uint16_t(mask | lockMask)};
    if (numLockMask != 0 && (mask & numLockMask) == 0)
        masks << uint16_t(mask | numLockMask) << uint16_t(mask | lockMask | numLockMask);
    return masks;
}

} // namespace X11Keys
