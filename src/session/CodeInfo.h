#pragma once

#include "tdlib/TdJson.h"

#include <QObject>
#include <QString>

// Where TDLib sent the login code ("authenticationCodeInfo"): the number being
// signed in and the way the code travels.
class CodeInfo
{
    Q_GADGET
    Q_PROPERTY(QString phoneNumber MEMBER phoneNumber CONSTANT)
    Q_PROPERTY(Delivery delivery MEMBER delivery CONSTANT)

public:
    enum class Delivery { Unknown, TelegramApp, Sms, Call, FlashCall, MissedCall, Fragment, PhoneApp };
    Q_ENUM(Delivery)

    // From "code_info" of "authorizationStateWaitCode"; empty when it is missing.
    static CodeInfo from(const TdObject &codeInfo);

    QString phoneNumber; // as TDLib gives it
    Delivery delivery = Delivery::Unknown;

    friend bool operator==(const CodeInfo &, const CodeInfo &) = default;
};
