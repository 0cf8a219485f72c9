#pragma once

// The case names of the model's enumerations, as the views and the replay
// driver write them ("sending", "photo", "animated", ...).

#include "session/ModelTypes.h"

#include <QString>

#include <optional>

QString caseName(MessageDeliveryState state);
QString caseName(MessageMediaKind kind);
// Empty for no media.
QString caseName(std::optional<MessageMediaKind> kind);
QString caseName(StickerFormat format);
QString caseName(AvatarColor color);
QString caseName(PendingAttachmentKind kind);
