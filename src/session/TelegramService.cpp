#include "session/TelegramService.h"

using namespace Qt::StringLiterals;

Message EmptyTelegramService::makeOutgoingMessage(const QString &text) const
{
    Message message;
    message.id = QUuid::createUuid().toString(QUuid::WithoutBraces);
    message.sender = User{newViewID(), u"You"_s, u"YO"_s, AvatarColor::Blue, std::nullopt};
    message.text = text;
    message.isOutgoing = true;
    message.deliveryState = MessageDeliveryState::Sent;
    return message;
}
