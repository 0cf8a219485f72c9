// Contacts and conversations.

#include "session/TelegramSession.h"

using namespace Qt::StringLiterals;

void TelegramSession::refreshContacts()
{
    send(u"getContacts"_s, {{"@extra"_L1, TdObject{{"purpose"_L1, u"contact_roster"_s}}}});
}
