#pragma once

#include <QString>

// Up to two upper-case letters for an avatar: the first letters of the first two
// words of the name.
QString initials(const QString &name);
