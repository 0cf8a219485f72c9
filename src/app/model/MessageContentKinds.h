#pragma once

#include "session/MessageDetails.h"

#include <QtQml/qqml.h>

// MessageContent's kinds and call ends for QML: MessageContent.Photo, ….
struct MessageContentForeign {
    Q_GADGET
    QML_FOREIGN(MessageContent)
    QML_NAMED_ELEMENT(MessageContent)
    QML_UNCREATABLE("Only the enumerations are used.")
};
