#include "session/Emoji.h"

#include <QList>

#include <unicode/uchar.h>

bool containsEmoji(QStringView text)
{
    for (const uint scalar : text.toUcs4()) {
        if (u_hasBinaryProperty(UChar32(scalar), UCHAR_EMOJI))
            return true;
    }
    return false;
}
