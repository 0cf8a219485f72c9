#pragma once

#include <QStringView>

// True when some character has the Unicode Emoji property. Digits, "#" and "*"
// have it too, so a query holding one is searched as emoji.
bool containsEmoji(QStringView text);
