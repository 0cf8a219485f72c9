#pragma once

#include "session/ModelTypes.h"

#include <QtQml/qqmlregistration.h>

// The session's model enumerations for QML, always named with their enumeration
// (Model.StickerFormat.Video, Model.MessageDeliveryState.Sending): several share
// key names. Registered here, where both the sticker views and the app's views
// (which import this module) find them.
namespace ModelForeign {
Q_NAMESPACE
QML_FOREIGN_NAMESPACE(Model)
QML_NAMED_ELEMENT(Model)
} // namespace ModelForeign
