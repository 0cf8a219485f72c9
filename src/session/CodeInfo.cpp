#include "session/CodeInfo.h"

using namespace Qt::StringLiterals;

CodeInfo CodeInfo::from(const TdObject &codeInfo)
{
    CodeInfo info;
    info.phoneNumber = codeInfo.value("phone_number"_L1).toString();
    const QString type = codeInfo.value("type"_L1).toObject().value("@type"_L1).toString();
    if (type == "authenticationCodeTypeTelegramMessage"_L1)
        info.delivery = Delivery::TelegramApp;
    else if (type.startsWith("authenticationCodeTypeSms"_L1)) // a code, a word or a phrase
        info.delivery = Delivery::Sms;
    else if (type == "authenticationCodeTypeCall"_L1)
        info.delivery = Delivery::Call;
    else if (type == "authenticationCodeTypeFlashCall"_L1)
        info.delivery = Delivery::FlashCall;
    else if (type == "authenticationCodeTypeMissedCall"_L1)
        info.delivery = Delivery::MissedCall;
    else if (type == "authenticationCodeTypeFragment"_L1)
        info.delivery = Delivery::Fragment;
    else if (type.startsWith("authenticationCodeTypeFirebase"_L1))
        info.delivery = Delivery::PhoneApp;
    return info;
}
