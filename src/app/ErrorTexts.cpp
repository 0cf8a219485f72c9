#include "ErrorTexts.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

ErrorTexts::ErrorTexts(QObject *parent)
    : QObject(parent)
{}

namespace {
struct Entry {
    const char *error;
    const char *sentence;
};

// TDLib's error texts as they come, and what they mean to the person signing in.
constexpr Entry entries[] = {
    {"PHONE_NUMBER_INVALID",
     QT_TRANSLATE_NOOP("ErrorTexts", "That phone number isn’t valid. Enter it with + and the country code, for "
                                     "example +44 7700 900123.")},
    {"PHONE_NUMBER_BANNED", QT_TRANSLATE_NOOP("ErrorTexts", "This phone number is banned from Telegram.")},
    {"PHONE_NUMBER_FLOOD",
     QT_TRANSLATE_NOOP("ErrorTexts", "This number has asked for too many codes. Try again later.")},
    {"PHONE_NUMBER_UNOCCUPIED",
     QT_TRANSLATE_NOOP("ErrorTexts", "This number has no Telegram account yet. Sign up in Telegram’s phone app "
                                     "first.")},
    {"PHONE_NUMBER_APP_SIGNUP_FORBIDDEN",
     QT_TRANSLATE_NOOP("ErrorTexts", "This number has no Telegram account yet. Sign up in Telegram’s phone app "
                                     "first.")},
    {"PHONE_CODE_INVALID", QT_TRANSLATE_NOOP("ErrorTexts", "That code isn’t right. Check it and try again.")},
    {"PHONE_CODE_EMPTY", QT_TRANSLATE_NOOP("ErrorTexts", "Enter the code Telegram sent you.")},
    {"PHONE_CODE_EXPIRED",
     QT_TRANSLATE_NOOP("ErrorTexts", "That code has expired. Use a different number, or enter this one again for a "
                                     "new code.")},
    {"PASSWORD_HASH_INVALID", QT_TRANSLATE_NOOP("ErrorTexts", "That password isn’t right. Try again.")},
    {"PASSWORD_EMPTY", QT_TRANSLATE_NOOP("ErrorTexts", "Enter your two-step verification password.")},
    {"PHONE_PASSWORD_FLOOD", QT_TRANSLATE_NOOP("ErrorTexts", "Too many attempts. Wait a while, then try again.")},
    {"AUTH_RESTART", QT_TRANSLATE_NOOP("ErrorTexts", "Signing in has to start again. Enter your number once more.")},
    {"API_ID_INVALID",
     QT_TRANSLATE_NOOP("ErrorTexts", "Telegram refused this copy of Vost. Install the latest release.")},
    {"USERNAME_NOT_OCCUPIED", QT_TRANSLATE_NOOP("ErrorTexts", "Nobody on Telegram has that username.")},
    {"USERNAME_INVALID",
     QT_TRANSLATE_NOOP("ErrorTexts", "That isn’t a valid username. Usernames use letters, numbers and "
                                     "underscores.")},
    {"Chat not found", QT_TRANSLATE_NOOP("ErrorTexts", "Nobody on Telegram has that username.")},
    {"CONTACT_NAME_EMPTY", QT_TRANSLATE_NOOP("ErrorTexts", "Enter a first name.")},
    {"FIRST_NAME_INVALID", QT_TRANSLATE_NOOP("ErrorTexts", "That first name can’t be used. Try a shorter one.")},
    {"LASTNAME_INVALID", QT_TRANSLATE_NOOP("ErrorTexts", "That last name can’t be used. Try a shorter one.")},
    {"USER_PRIVACY_RESTRICTED",
     QT_TRANSLATE_NOOP("ErrorTexts", "Their privacy settings don’t allow this. Try their username instead.")},
    {"CONTACT_ID_INVALID", QT_TRANSLATE_NOOP("ErrorTexts", "That person can’t be added as a contact.")},
};

constexpr const char *tooManyAttempts =
    QT_TRANSLATE_NOOP("ErrorTexts", "Too many attempts. Wait a while, then try again.");
} // namespace

QString ErrorTexts::sentence(const QString &error)
{
    const QString code = error.trimmed();
    for (const Entry &entry : entries) {
        if (code == QLatin1StringView(entry.error))
            return QCoreApplication::translate("ErrorTexts", entry.sentence);
    }
    // Flood limits carry their wait in the text: "FLOOD_WAIT_42", "Too Many Requests: retry after 42".
    if (code.startsWith("FLOOD_WAIT_"_L1) || code.startsWith("Too Many Requests"_L1))
        return QCoreApplication::translate("ErrorTexts", tooManyAttempts);
    return error;
}
