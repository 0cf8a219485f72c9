#pragma once

#include "session/ModelTypes.h"

// What the view model needs from a messaging service when it has no live session.
class TelegramService
{
public:
    virtual ~TelegramService() = default;
    virtual Message makeOutgoingMessage(const QString &text) const = 0;
};

// The stand-in used when there is no real service: it echoes what is typed.
class EmptyTelegramService : public TelegramService
{
public:
    explicit EmptyTelegramService(bool canSend = false)
        : canSendMessages(canSend)
    {}
    Message makeOutgoingMessage(const QString &text) const override;

    bool canSendMessages;
};
