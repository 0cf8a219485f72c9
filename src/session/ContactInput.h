#pragma once

#include <QString>

#include <optional>

// A phone number as typed ("+44 (7700) 900-123") reduced to "+" and digits, or
// nothing when it is not an international number of 6 to 15 digits.
std::optional<QString> normalizedContactPhone(const QString &text);

// A public username as typed, without blanks and one leading "@", or nothing
// when it is not 1 to 32 letters, digits and underscores.
std::optional<QString> cleanedUsername(const QString &text);
