#pragma once

#include <QHash>
#include <QRegularExpression>
#include <QString>

// Typed smileys such as ":)" or "<3" shown as emoji. Display only: the stored and
// sent text never changes. A smiley is replaced only when it stands on its own (no
// letter, digit, underscore, slash or backslash touching it) and never inside a link.
namespace SmileyText {

// Smiley → emoji, 32 rows.
const QHash<QString, QString> &replacements();
// Matches any smiley standing alone; longer smileys are tried first.
const QRegularExpression &pattern();

// The text with every stand-alone smiley outside links replaced by its emoji.
QString render(const QString &text);

} // namespace SmileyText
