#pragma once

#include <QDateTime>

#include <optional>

// Times of messages (Unix seconds) as shown, in the local time zone and the
// user's locale. The chat list shows "H:mm" today, "Yesterday", else "d MMM".
QString timestampText(std::optional<qint64> date, QDate today);
// The time in a message bubble: "H:mm".
QString messageTime(std::optional<qint64> date);
