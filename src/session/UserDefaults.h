#pragma once

#include <QVariant>

// The user's preferences ("vostAppearanceMode", "soundsEnabled", "soundPack").
namespace UserDefaults {
QVariant value(const QString &key);
void setValue(const QString &key, const QVariant &value);
} // namespace UserDefaults
