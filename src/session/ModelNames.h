#pragma once

// The case names of enumerations as the replay driver writes them and the user's
// preferences store them: the key with its first letter in lower case
// ("sending", "photo", "phoneNumber"), read from the enumeration's meta-object,
// so that a new key needs no table.

#include "session/ModelTypes.h"

#include <QMetaEnum>
#include <QString>

#include <optional>
#include <type_traits>

QString caseName(const QMetaEnum &meta, int value);
// The value whose case name is exactly name; none for any other text.
std::optional<int> caseValue(const QMetaEnum &meta, const QString &name);

template<typename E>
requires std::is_enum_v<E> QString caseName(E value)
{
    return caseName(QMetaEnum::fromType<E>(), int(value));
}

// Empty for no value.
template<typename E> QString caseName(std::optional<E> value)
{
    return value ? caseName(*value) : QString();
}

template<typename E> std::optional<E> caseFromName(const QString &name)
{
    const std::optional<int> value = caseValue(QMetaEnum::fromType<E>(), name);
    return value ? std::optional(E(*value)) : std::nullopt;
}
