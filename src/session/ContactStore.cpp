// Contacts and conversations: the roster and contact search, adding a contact by
// phone number, opening a public username or a private chat (one outstanding
// request with a time-out), and deleting chats and contacts.

#include "session/ContactStore.h"

#include "session/ChangedValue.h"
#include "session/ContactInput.h"
#include "session/ContentTexts.h"
#include "session/Initials.h"
#include "session/UserStore.h"

#include <QCoreApplication>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

constexpr int conversationTimeoutMs = 45000;
constexpr int maximumNameLength = 64;

TdObject tagged(const QString &purpose, std::initializer_list<std::pair<QLatin1StringView, QJsonValue>> context = {})
{
    TdObject extra{{"purpose"_L1, purpose}};
    for (const auto &[key, value] : context)
        extra.insert(key, value);
    return extra;
}

QString errorText(const TdObject &error)
{
    const QJsonValue message = error.value("message"_L1);
    return message.isString() ? message.toString()
                              : QCoreApplication::translate("ContactStore", "Telegram returned an unknown error.");
}

} // namespace

ContactStore::ContactStore(SendRequest send, const UserStore &users, QObject *parent)
    : QObject(parent)
    , m_send(std::move(send))
    , m_users(users)
    , m_conversationTimeout(new QTimer(this))
{
    m_conversationTimeout->setSingleShot(true);
    connect(m_conversationTimeout, &QTimer::timeout, this, [this] {
        failConversation(tr("Telegram took too long to respond. A submitted contact may already be saved. Check "
                            "Contacts or try again."));
    });
}

void ContactStore::reset()
{
    cancelConversation();
    m_deletingChats.clear();
    Q_EMIT deletingChatsChanged();
    setConversationError(std::nullopt);
    m_newlyOpenedChatID.reset();
    Q_EMIT newlyOpenedChatIDChanged();
    m_contacts.clear();
    Q_EMIT contactsChanged();
    m_contactResults.clear();
    Q_EMIT contactResultsChanged();
    m_contactQuery.clear();
    m_contactUserIDs.clear();
    m_rosterOrder.clear();
    m_rosterRank.clear();
    m_contactNames.clear();
}

void ContactStore::noteUser(const TdObject &user)
{
    const std::optional<qint64> id = int64From(user.value("id"_L1));
    if (!id)
        return;
    const QJsonValue isContact = user.value("is_contact"_L1);
    if (isContact.isBool()) {
        if (isContact.toBool()) {
            m_contactUserIDs.insert(*id);
        } else {
            m_contactUserIDs.remove(*id);
            if (m_contacts.removeIf([id](const ContactChoice &c) { return c.id == *id; }) > 0)
                Q_EMIT contactsChanged();
        }
    }
    if (const auto contact = m_contactNames.find(*id); contact != m_contactNames.end())
        *contact = contactName(user);
}

void ContactStore::setConversationError(const std::optional<QString> &error)
{
    if (assignChanged(m_conversationError, error))
        Q_EMIT conversationErrorChanged();
}

void ContactStore::setCreatingConversation(bool creating)
{
    if (assignChanged(m_creatingConversation, creating))
        Q_EMIT creatingConversationChanged();
}

void ContactStore::refresh()
{
    m_send(u"getContacts"_s, {{"@extra"_L1, tagged(u"contact_roster"_s)}});
}

void ContactStore::search(const QString &query)
{
    const QString trimmed = query.trimmed();
    m_contactQuery = trimmed;
    if (trimmed.isEmpty()) {
        m_contactResults.clear();
        Q_EMIT contactResultsChanged();
        return;
    }
    m_send(
        u"searchContacts"_s,
        {{"query"_L1, trimmed}, {"limit"_L1, 30}, {"@extra"_L1, tagged(u"contact_search"_s, {{"query"_L1, trimmed}})}});
}

QString ContactStore::beginConversation()
{
    cancelConversation();
    setConversationError(std::nullopt);
    setCreatingConversation(true);
    const QString requestID = QUuid::createUuid().toString(QUuid::WithoutBraces);
    m_conversationRequestID = requestID;
    m_conversationTimeout->start(conversationTimeoutMs);
    return requestID;
}

void ContactStore::cancelConversation()
{
    m_conversationTimeout->stop();
    m_conversationRequestID.reset();
    setCreatingConversation(false);
}

void ContactStore::failConversation(const QString &text)
{
    cancelConversation();
    setConversationError(text);
}

void ContactStore::createContact(const QString &firstName, const QString &lastName, const QString &phone,
                                 const QString &note)
{
    if (m_creatingConversation)
        return;
    const QString first = firstName.trimmed();
    const QString last = lastName.trimmed();
    if (first.isEmpty() || first.size() > maximumNameLength || last.size() > maximumNameLength) {
        setConversationError(tr("Enter a first name. First and last names can each contain up to 64 characters."));
        return;
    }
    const std::optional<QString> number = normalizedContactPhone(phone);
    if (!number) {
        setConversationError(
            tr("Enter a valid phone number including + and the country code (for example, +44 7700 900123)."));
        return;
    }
    const QString requestID = beginConversation();
    const QJsonValue noteText =
        note.isEmpty()
            ? QJsonValue(QJsonValue::Null)
            : QJsonValue(TdObject{{"@type"_L1, u"formattedText"_s}, {"text"_L1, note}, {"entities"_L1, QJsonArray()}});
    m_send(u"importContacts"_s, {{"contacts"_L1, QJsonArray{TdObject{{"@type"_L1, u"importedContact"_s},
                                                                     {"phone_number"_L1, *number},
                                                                     {"first_name"_L1, first},
                                                                     {"last_name"_L1, last},
                                                                     {"note"_L1, noteText}}}},
                                 {"@extra"_L1, tagged(u"new_contact"_s, {{"conversation_request"_L1, requestID}})}});
}

void ContactStore::openUsername(const QString &username)
{
    if (m_creatingConversation)
        return;
    const std::optional<QString> name = cleanedUsername(username);
    if (!name) {
        setConversationError(
            tr("Enter a Telegram username, such as @username, using letters, numbers and underscores."));
        return;
    }
    const QString requestID = beginConversation();
    m_send(u"searchPublicChat"_s,
           {{"username"_L1, *name},
            {"@extra"_L1, tagged(u"open_private_chat"_s, {{"conversation_request"_L1, requestID}})}});
}

void ContactStore::requestPrivateChat(qint64 userID, const QString &requestID, bool contactSaved)
{
    m_send(u"createPrivateChat"_s,
           {{"user_id"_L1, userID},
            {"force"_L1, false},
            {"@extra"_L1, tagged(u"open_private_chat"_s,
                                 {{"conversation_request"_L1, requestID}, {"contact_saved"_L1, contactSaved}})}});
}

void ContactStore::deleteChat(const QString &chatID, std::optional<qint64> contactID)
{
    const std::optional<qint64> chat = parseInt64(chatID);
    if (!chat)
        return;
    m_deletingChats.insert(chatID);
    Q_EMIT deletingChatsChanged();
    TdObject extra = tagged(u"delete_chat"_s, {{"chat_id"_L1, chatID}});
    if (contactID)
        extra.insert("contact_id"_L1, *contactID);
    m_send(u"deleteChatHistory"_s,
           {{"chat_id"_L1, *chat}, {"remove_from_chat_list"_L1, true}, {"revoke"_L1, false}, {"@extra"_L1, extra}});
}

void ContactStore::deleteContact(qint64 userID)
{
    m_send(u"removeContacts"_s, {{"user_ids"_L1, QJsonArray{userID}},
                                 {"@extra"_L1, tagged(u"delete_contact"_s, {{"contact_id"_L1, userID}})}});
}

bool ContactStore::handleAnswer(const QString &purpose, const QString &type, const TdObject &object)
{
    const TdObject extra = object.value("@extra"_L1).toObject();
    const QJsonValue request = extra.value("conversation_request"_L1);
    if (purpose == "new_contact"_L1 || purpose == "open_private_chat"_L1 || !request.isUndefined()) {
        if (type != "importedContacts"_L1 && type != "chat"_L1 && type != "error"_L1)
            return false;
        if (request.toString() != m_conversationRequestID)
            return true; // a late answer to a conversation that has ended
        if (type == "error"_L1) {
            failConversation(
                extra.value("contact_saved"_L1).toBool()
                    ? tr("The contact was saved, but the chat could not be opened. Try opening it from Contacts.")
                    : errorText(object));
        } else if (type == "chat"_L1) {
            openConversationChat(object);
        } else if (purpose == "new_contact"_L1) {
            refresh();
            for (const QJsonValue &id : object.value("user_ids"_L1).toArray()) {
                if (const auto userID = int64From(id); userID && *userID != 0) {
                    requestPrivateChat(*userID, request.toString(), true);
                    return true;
                }
            }
            failConversation(tr("No Telegram account could be found for that number. Check the country code or try "
                                "their username; Telegram privacy settings can prevent phone-number lookup."));
        } else {
            return false;
        }
        return true;
    }
    if (purpose == "delete_chat"_L1 && (type == "ok"_L1 || type == "error"_L1)) {
        const QString chatID = extra.value("chat_id"_L1).toString();
        if (type == "error"_L1) {
            m_deletingChats.remove(chatID);
            Q_EMIT deletingChatsChanged();
            setConversationError(tr("Telegram could not complete this action."));
            return true;
        }
        forgetChat(chatID);
        const qint64 contactID = int64From(extra.value("contact_id"_L1)).value_or(0);
        if (contactID != 0) {
            m_send(u"removeContacts"_s, {{"user_ids"_L1, QJsonArray{contactID}},
                                         {"@extra"_L1, tagged(u"chat_deleted"_s, {{"contact_id"_L1, contactID}})}});
        }
        return true;
    }
    if ((purpose == "chat_deleted"_L1 || purpose == "delete_contact"_L1 || purpose == "contact_saved"_L1) &&
        (type == "ok"_L1 || type == "error"_L1)) {
        if (type == "error"_L1) {
            if (purpose == "chat_deleted"_L1)
                setConversationError(tr("The chat was deleted, but the contact could not be removed."));
            else if (purpose == "contact_saved"_L1)
                setConversationError(
                    tr("The contact was saved, but the chat could not be opened. Try opening it from Contacts."));
            else
                setConversationError(tr("Telegram could not complete this action."));
            return true;
        }
        if (const auto contactID = int64From(extra.value("contact_id"_L1))) {
            m_contactUserIDs.remove(*contactID);
            m_rosterOrder.removeAll(*contactID);
            rankRoster();
            if (m_contacts.removeIf([id = *contactID](const ContactChoice &c) { return c.id == id; }) > 0)
                Q_EMIT contactsChanged();
        }
        refresh();
        return true;
    }
    if (purpose == "contact_search"_L1 && type == "users"_L1) {
        const QJsonArray ids = object.value("user_ids"_L1).toArray();
        const QString query = extra.value("query"_L1).toString();
        if (query == m_contactQuery) {
            m_contactResults.clear();
            Q_EMIT contactResultsChanged();
        }
        for (const QJsonValue &id : ids) {
            if (const auto userID = int64From(id))
                m_send(u"getUser"_s, {{"user_id"_L1, *userID},
                                      {"@extra"_L1, tagged(u"contact_search_result"_s, {{"query"_L1, query}})}});
        }
        return true;
    }
    if (purpose == "contact_roster"_L1 && type == "users"_L1) {
        m_rosterOrder.clear();
        for (const QJsonValue &id : object.value("user_ids"_L1).toArray()) {
            if (const auto userID = int64From(id)) {
                m_rosterOrder.append(*userID);
                m_send(u"getUser"_s, {{"user_id"_L1, *userID}, {"@extra"_L1, tagged(u"contact_roster_result"_s)}});
            }
        }
        rankRoster();
        // Contacts that left the roster leave the list; the others follow its new order.
        const bool removed =
            m_contacts.removeIf([this](const ContactChoice &c) { return !m_rosterRank.contains(c.id); }) > 0;
        const auto byRank = [this](const ContactChoice &a, const ContactChoice &b) {
            return m_rosterRank.value(a.id) < m_rosterRank.value(b.id);
        };
        const bool reordered = !std::is_sorted(m_contacts.cbegin(), m_contacts.cend(), byRank);
        if (reordered)
            std::stable_sort(m_contacts.begin(), m_contacts.end(), byRank);
        if (removed || reordered)
            Q_EMIT contactsChanged();
        return true;
    }
    if (purpose == "contact_search_result"_L1 && type == "user"_L1) {
        Q_EMIT userReceived(object);
        publishContactResult(object, extra.value("query"_L1).toString());
        return true;
    }
    if (purpose == "contact_roster_result"_L1 && type == "user"_L1) {
        Q_EMIT userReceived(object);
        publishRosterContact(object);
        return true;
    }
    return false;
}

void ContactStore::openConversationChat(const TdObject &chat)
{
    const std::optional<qint64> id = int64From(chat.value("id"_L1));
    if (!id) {
        failConversation(tr("Telegram returned an unknown error."));
        return;
    }
    const QString chatID = QString::number(*id);
    Q_EMIT conversationChatReceived(chat);
    cancelConversation();
    m_newlyOpenedChatID = chatID;
    Q_EMIT newlyOpenedChatIDChanged();
}

void ContactStore::forgetChat(const QString &chatID)
{
    m_deletingChats.remove(chatID);
    Q_EMIT deletingChatsChanged();
    Q_EMIT chatDeleted(chatID);
}

ContactStore::ContactName ContactStore::contactName(const TdObject &user)
{
    const QString joined = fullName(user);
    const QJsonArray active = user.value("usernames"_L1).toObject().value("active_usernames"_L1).toArray();
    return {joined.isEmpty() ? tr("Telegram contact") : joined,
            active.isEmpty() ? QString() : u"@"_s + active.first().toString()};
}

ContactChoice ContactStore::makeContactChoice(qint64 userID, const ContactName &name) const
{
    const User *stored = m_users.user(userID);
    return {userID,
            name.name,
            name.username,
            initials(name.name),
            stored ? stored->avatarPath : std::nullopt,
            m_users.isOnline(userID)};
}

void ContactStore::publishRosterContact(const TdObject &user)
{
    const std::optional<qint64> userID = int64From(user.value("id"_L1));
    const auto rank = userID ? m_rosterRank.constFind(*userID) : m_rosterRank.cend();
    if (rank == m_rosterRank.cend())
        return;
    const ContactName name = contactName(user);
    m_contactNames.insert(*userID, name);
    // The list keeps the roster's order: its place is found by rank, not by a scan.
    const auto place =
        std::lower_bound(m_contacts.begin(), m_contacts.end(), *rank, [this](const ContactChoice &c, qsizetype wanted) {
            return m_rosterRank.value(c.id, -1) < wanted;
        });
    ContactChoice choice = makeContactChoice(*userID, name);
    if (place != m_contacts.end() && place->id == choice.id)
        *place = std::move(choice);
    else
        m_contacts.insert(place, std::move(choice));
    Q_EMIT contactsChanged();
}

void ContactStore::rankRoster()
{
    m_rosterRank.clear();
    m_rosterRank.reserve(m_rosterOrder.size());
    for (qsizetype i = 0; i < m_rosterOrder.size(); ++i)
        m_rosterRank.insert(m_rosterOrder.at(i), i);
}

void ContactStore::publishContactResult(const TdObject &user, const QString &query)
{
    const std::optional<qint64> userID = int64From(user.value("id"_L1));
    if (!userID || query != m_contactQuery)
        return; // a result of an earlier search
    const ContactName name = contactName(user);
    m_contactNames.insert(*userID, name);
    const ContactChoice choice = makeContactChoice(*userID, name);
    replaceOrAppend(m_contactResults, choice);
    Q_EMIT contactResultsChanged();
}

void ContactStore::refreshEntries(qint64 userID)
{
    const auto refreshList = [this, userID](QList<ContactChoice> &list) {
        bool changed = false;
        for (ContactChoice &contact : list) {
            if (contact.id != userID)
                continue;
            const auto name = m_contactNames.constFind(userID);
            ContactChoice updated = makeContactChoice(
                userID, name != m_contactNames.cend() ? *name : ContactName{contact.name, contact.username});
            changed |= updated != contact;
            contact = updated;
        }
        return changed;
    };
    if (refreshList(m_contacts))
        Q_EMIT contactsChanged();
    if (refreshList(m_contactResults))
        Q_EMIT contactResultsChanged();
}
