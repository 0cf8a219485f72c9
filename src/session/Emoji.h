#pragma once

#include <QString>
#include <QStringView>

// True when some character has the Unicode Emoji property. Digits, "#" and "*"
// have it too, so a query holding one is searched as emoji.
bool containsEmoji(QStringView text);

// How many emoji the text is made of when it holds nothing else (spaces
// aside), counted as the reader sees them: a sequence joined by zero-width
// joiners, a flag, a skin-toned or keycap emoji is one. 0 when the text holds
// anything else, or nothing. Characters that are emoji only when asked for
// (digits, "©", "❤") count only with the emoji variation selector.
int emojiOnlyCount(QStringView text);

// The text as the colour emoji font is given it: without the emoji variation
// selector, which the font lacks; Qt would take it from another font and so
// split a joined sequence ("❤️‍🔥") into its parts.
QString emojiFontText(QStringView text);
