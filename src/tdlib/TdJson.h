#pragma once

// Reading TDLib's JSON. Objects are parsed once, where they enter the session,
// and read through these helpers; 64-bit values go through int64From only.

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QStringView>

#include <optional>

using TdObject = QJsonObject;

// Strict decimal: an optional single sign, one or more ASCII digits, nothing else,
// and the value fits a signed 64-bit integer.
std::optional<qint64> parseInt64(QStringView text);

// A JSON integer, or a decimal string as TDLib writes its 64-bit values.
std::optional<qint64> int64From(const QJsonValue &value);

// A JSON integer (not a string); TDLib's 32-bit fields.
std::optional<qint64> integerFrom(const QJsonValue &value);

inline QString typeOf(const QJsonObject &object)
{
    return object.value(QLatin1StringView("@type")).toString();
}

// The "@type" of a nested object, empty when there is none.
inline QString typeOf(const QJsonValue &value)
{
    return value.toObject().value(QLatin1StringView("@type")).toString();
}
