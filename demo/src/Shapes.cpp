#include "Account.h"
#include "Json.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace demo {

namespace {

QJsonObject senderJson(const DemoMessage &message)
{
    if (message.senderUserID == 0)
        return object("messageSenderChat", {{"chat_id", message.chatID}});
    return object("messageSenderUser", {{"user_id", message.senderUserID}});
}

QJsonObject chatListJson(bool archive)
{
    return object(archive ? "chatListArchive" : "chatListMain");
}

QJsonObject usernamesJson(const QString &username)
{
    if (username.isEmpty())
        return {};
    return object("usernames", {{"active_usernames", QJsonArray{username}},
                                {"disabled_usernames", QJsonArray{}},
                                {"editable_username", username},
                                {"collectible_usernames", QJsonArray{}}});
}

QJsonValue orNull(const QJsonObject &object)
{
    return object.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(object);
}

} // namespace

QJsonObject Account::fileRef(int fileID) const
{
    return object("file", {{"id", fileID}});
}

QJsonObject Account::fileJson(int fileID) const
{
    const auto it = files.find(fileID);
    if (it == files.end())
        return fileRef(fileID);
    const DemoFile &file = it->second;
    const QString remoteID = u"DEMO"_s + QString::number(file.id).rightJustified(8, u'0');
    const qint64 downloaded = file.completed ? file.size : file.downloaded;
    return object("file",
                  {{"id", file.id},
                   {"size", file.size},
                   {"expected_size", file.size},
                   {"local", object("localFile", {{"path", file.completed ? file.localPath : QString()},
                                                  {"can_be_downloaded", file.recipe != FileRecipe::Uploaded},
                                                  {"can_be_deleted", file.completed},
                                                  {"is_downloading_active", file.downloading},
                                                  {"is_downloading_completed", file.completed},
                                                  {"download_offset", 0},
                                                  {"downloaded_prefix_size", downloaded},
                                                  {"downloaded_size", downloaded}})},
                   {"remote", object("remoteFile", {{"id", file.uploading ? QString() : remoteID},
                                                    {"unique_id", file.uploading ? QString() : remoteID.toLower()},
                                                    {"is_uploading_active", file.uploading},
                                                    {"is_uploading_completed", !file.uploading},
                                                    {"uploaded_size", file.uploading ? 0 : file.size}})}});
}

QJsonValue Account::filled(const QJsonValue &value) const
{
    if (value.isArray()) {
        QJsonArray result;
        for (const QJsonValue &element : value.toArray())
            result.append(filled(element));
        return result;
    }
    if (!value.isObject())
        return value;
    QJsonObject object = value.toObject();
    if (object.value("@type"_L1).toString() == "file"_L1)
        return fileJson(int(object.value("id"_L1).toInteger()));
    for (auto it = object.begin(); it != object.end(); ++it)
        if (it->isObject() || it->isArray())
            *it = filled(*it);
    return object;
}

QJsonObject Account::userStatusJson(const DemoUser &user) const
{
    switch (user.presence) {
    case Presence::Online:
        return object("userStatusOnline", {{"expires", m_now + 300}});
    case Presence::Recently:
        return object("userStatusRecently", {{"by_my_privacy_settings", false}});
    case Presence::Offline:
        break;
    }
    return object("userStatusOffline", {{"was_online", user.wasOnline}});
}

QJsonObject Account::userJson(qint64 userID) const
{
    const DemoUser *found = user(userID);
    if (!found)
        return {};
    const DemoUser &u = *found;
    QJsonObject photo;
    if (u.photoSmall)
        photo = object("profilePhoto", {{"id", int64String(5000000000000LL + u.id)},
                                        {"small", fileJson(u.photoSmall)},
                                        {"big", fileJson(u.photoBig)},
                                        {"minithumbnail", QJsonValue::Null},
                                        {"has_animation", false},
                                        {"is_personal", false}});
    const QJsonObject type = u.isBot ? object("userTypeBot", {{"can_be_edited", false},
                                                              {"can_join_groups", true},
                                                              {"can_read_all_group_messages", false},
                                                              {"has_main_web_app", false},
                                                              {"has_topics", false},
                                                              {"allows_users_to_create_topics", false},
                                                              {"can_manage_bots", false},
                                                              {"is_inline", false},
                                                              {"inline_query_placeholder", QString()},
                                                              {"supports_guest_queries", false},
                                                              {"is_guard", false},
                                                              {"need_location", false},
                                                              {"can_connect_to_business", false},
                                                              {"can_be_added_to_attachment_menu", false},
                                                              {"active_user_count", 0}})
                                     : object("userTypeRegular");
    return object("user", {{"id", u.id},
                           {"first_name", u.firstName},
                           {"last_name", u.lastName},
                           {"usernames", orNull(usernamesJson(u.username))},
                           {"phone_number", u.phone},
                           {"status", userStatusJson(u)},
                           {"profile_photo", orNull(photo)},
                           {"accent_color_id", int(u.id % 7)},
                           {"background_custom_emoji_id", int64String(0)},
                           {"upgraded_gift_colors", QJsonValue::Null},
                           {"profile_accent_color_id", -1},
                           {"profile_background_custom_emoji_id", int64String(0)},
                           {"emoji_status", QJsonValue::Null},
                           {"is_contact", u.isContact},
                           {"is_mutual_contact", u.isContact},
                           {"is_close_friend", false},
                           {"verification_status", QJsonValue::Null},
                           {"is_premium", false},
                           {"is_support", u.id == serviceID()},
                           {"restriction_info", QJsonValue::Null},
                           {"active_story_state", QJsonValue::Null},
                           {"restricts_new_chats", false},
                           {"paid_message_star_count", 0},
                           {"have_access", true},
                           {"type", type},
                           {"language_code", QString()},
                           {"added_to_attachment_menu", false}});
}

qint64 Account::order(const DemoChat &chat) const
{
    if (!chat.inList)
        return 0;
    if (chat.pinIndex > 0)
        return (qint64(2147000000 - chat.pinIndex) << 32);
    qint64 date = 0;
    qint64 lastID = 0;
    if (!chat.messages.empty()) {
        date = chat.messages.rbegin()->second.date;
        lastID = chat.messages.rbegin()->first;
    }
    if (!chat.draft.isEmpty())
        date = std::max<qint64>(date, m_now - 600);
    return (date << 32) + ((lastID >> 20) & 0xffffffffLL) + 1;
}

int Account::unreadCount(const DemoChat &chat) const
{
    int count = 0;
    for (auto it = chat.messages.upper_bound(chat.lastReadInbox); it != chat.messages.end(); ++it)
        if (!it->second.outgoing && !it->second.pending)
            ++count;
    return count;
}

QJsonArray Account::positionsJson(const DemoChat &chat) const
{
    if (!chat.inList)
        return {};
    return QJsonArray{object("chatPosition", {{"list", chatListJson(chat.archived)},
                                              {"order", int64String(order(chat))},
                                              {"is_pinned", chat.pinIndex > 0},
                                              {"source", QJsonValue::Null}})};
}

std::vector<qint64> Account::chatList(bool archive) const
{
    std::vector<const DemoChat *> list;
    for (const auto &[id, chat] : chats)
        if (chat.inList && chat.archived == archive)
            list.push_back(&chat);
    std::stable_sort(list.begin(), list.end(), [this](const DemoChat *a, const DemoChat *b) {
        const qint64 oa = order(*a), ob = order(*b);
        return oa != ob ? oa > ob : a->id > b->id;
    });
    std::vector<qint64> ids;
    for (const DemoChat *chat : list)
        ids.push_back(chat->id);
    return ids;
}

QJsonObject Account::notificationSettingsJson(const DemoChat &chat) const
{
    return object("chatNotificationSettings", {{"use_default_mute_for", !chat.muted},
                                               {"mute_for", chat.muted ? 2147483647 : 0},
                                               {"use_default_sound", true},
                                               {"sound_id", int64String(0)},
                                               {"use_default_show_preview", true},
                                               {"show_preview", true},
                                               {"use_default_mute_stories", true},
                                               {"mute_stories", false},
                                               {"use_default_story_sound", true},
                                               {"story_sound_id", int64String(0)},
                                               {"use_default_show_story_poster", true},
                                               {"show_story_poster", true},
                                               {"use_default_disable_pinned_message_notifications", true},
                                               {"disable_pinned_message_notifications", false},
                                               {"use_default_disable_mention_notifications", true},
                                               {"disable_mention_notifications", false}});
}

QJsonValue Account::lastMessageJson(const DemoChat &chat) const
{
    if (chat.messages.empty())
        return QJsonValue::Null;
    return messageJson(chat.messages.rbegin()->second);
}

QJsonObject Account::chatJson(const DemoChat &chat) const
{
    QJsonObject type;
    switch (chat.kind) {
    case ChatKind::Private:
        type = object("chatTypePrivate", {{"user_id", chat.userID}});
        break;
    case ChatKind::BasicGroup:
        type = object("chatTypeBasicGroup", {{"basic_group_id", chat.groupID}});
        break;
    case ChatKind::Supergroup:
    case ChatKind::Channel:
        type = object("chatTypeSupergroup",
                      {{"supergroup_id", chat.groupID}, {"is_channel", chat.kind == ChatKind::Channel}});
        break;
    case ChatKind::Secret:
        type = object("chatTypeSecret", {{"secret_chat_id", chat.groupID}, {"user_id", chat.userID}});
        break;
    }
    QJsonObject photo;
    if (chat.photoSmall)
        photo = object("chatPhotoInfo", {{"small", fileJson(chat.photoSmall)},
                                         {"big", fileJson(chat.photoBig)},
                                         {"minithumbnail", QJsonValue::Null},
                                         {"has_animation", false},
                                         {"is_personal", false}});
    const bool canWrite = chat.kind != ChatKind::Channel;
    QJsonObject draft;
    if (!chat.draft.isEmpty())
        draft = object("draftMessage",
                       {{"reply_to", QJsonValue::Null},
                        {"date", m_now - 600},
                        {"content", object("draftMessageContentText", {{"text", formattedText(chat.draft)},
                                                                       {"link_preview_options", QJsonValue::Null}})},
                        {"effect_id", int64String(0)},
                        {"suggested_post_info", QJsonValue::Null}});
    QJsonArray lists;
    if (chat.inList)
        lists.append(chatListJson(chat.archived));
    return object("chat",
                  {{"id", chat.id},
                   {"type", type},
                   {"title", chat.title},
                   {"photo", orNull(photo)},
                   {"accent_color_id", int(qAbs(chat.id) % 7)},
                   {"background_custom_emoji_id", int64String(0)},
                   {"upgraded_gift_colors", QJsonValue::Null},
                   {"profile_accent_color_id", -1},
                   {"profile_background_custom_emoji_id", int64String(0)},
                   {"permissions", object("chatPermissions", {{"can_send_basic_messages", canWrite},
                                                              {"can_send_audios", canWrite},
                                                              {"can_send_documents", canWrite},
                                                              {"can_send_photos", canWrite},
                                                              {"can_send_videos", canWrite},
                                                              {"can_send_video_notes", canWrite},
                                                              {"can_send_voice_notes", canWrite},
                                                              {"can_send_polls", canWrite},
                                                              {"can_send_other_messages", canWrite},
                                                              {"can_add_link_previews", canWrite},
                                                              {"can_react_to_messages", true},
                                                              {"can_edit_tag", false},
                                                              {"can_change_info", false},
                                                              {"can_invite_users", true},
                                                              {"can_pin_messages", chat.kind == ChatKind::Private},
                                                              {"can_create_topics", false}})},
                   {"last_message", lastMessageJson(chat)},
                   {"positions", positionsJson(chat)},
                   {"chat_lists", lists},
                   {"message_sender_id", QJsonValue::Null},
                   {"block_list", QJsonValue::Null},
                   {"has_protected_content", false},
                   {"is_translatable", false},
                   {"is_marked_as_unread", chat.markedUnread},
                   {"view_as_topics", false},
                   {"has_scheduled_messages", false},
                   {"can_be_deleted_only_for_self", true},
                   {"can_be_deleted_for_all_users", chat.kind == ChatKind::Private || chat.kind == ChatKind::Secret},
                   {"can_be_reported", chat.kind != ChatKind::Private},
                   {"default_disable_notification", false},
                   {"unread_count", unreadCount(chat)},
                   {"last_read_inbox_message_id", chat.lastReadInbox},
                   {"last_read_outbox_message_id", chat.lastReadOutbox},
                   {"unread_mention_count", 0},
                   {"unread_reaction_count", 0},
                   {"unread_poll_vote_count", 0},
                   {"notification_settings", notificationSettingsJson(chat)},
                   {"available_reactions", object("chatAvailableReactionsAll", {{"max_reaction_count", 11}})},
                   {"message_auto_delete_time", 0},
                   {"emoji_status", QJsonValue::Null},
                   {"background", QJsonValue::Null},
                   {"theme", QJsonValue::Null},
                   {"action_bar", QJsonValue::Null},
                   {"business_bot_manage_bar", QJsonValue::Null},
                   {"video_chat", object("videoChat", {{"group_call_id", 0},
                                                       {"has_participants", false},
                                                       {"default_participant_id", QJsonValue::Null}})},
                   {"pending_join_requests", QJsonValue::Null},
                   {"reply_markup_message_id", 0},
                   {"draft_message", orNull(draft)},
                   {"client_data", QString()}});
}

QJsonObject Account::interactionInfoJson(const DemoMessage &message) const
{
    QJsonArray reactions;
    for (const DemoReaction &reaction : message.reactions) {
        const QJsonObject type =
            reaction.emoji.isEmpty()
                ? object("reactionTypeCustomEmoji", {{"custom_emoji_id", int64String(reaction.customEmojiID)}})
                : object("reactionTypeEmoji", {{"emoji", reaction.emoji}});
        const QJsonValue usedSender = reaction.chosen ? QJsonValue(object("messageSenderUser", {{"user_id", m_selfID}}))
                                                      : QJsonValue(QJsonValue::Null);
        reactions.append(object("messageReaction", {{"type", type},
                                                    {"total_count", reaction.count},
                                                    {"is_chosen", reaction.chosen},
                                                    {"used_sender_id", usedSender},
                                                    {"recent_sender_ids", QJsonArray{}}}));
    }
    return object("messageInteractionInfo",
                  {{"view_count", message.views},
                   {"forward_count", 0},
                   {"reply_info", QJsonValue::Null},
                   {"reactions", object("messageReactions", {{"reactions", reactions},
                                                             {"are_tags", false},
                                                             {"paid_reactors", QJsonArray{}},
                                                             {"can_get_added_reactions", false}})}});
}

QJsonObject Account::messageJson(const DemoMessage &m) const
{
    const DemoChat *owner = chat(m.chatID);
    const bool channel = owner && owner->kind == ChatKind::Channel;
    QJsonValue forward = QJsonValue::Null;
    if (m.forwardedFromUser)
        forward = object("messageForwardInfo",
                         {{"origin", object("messageOriginUser", {{"sender_user_id", m.forwardedFromUser}})},
                          {"date", m.forwardDate},
                          {"source", QJsonValue::Null},
                          {"public_service_announcement_type", QString()}});
    QJsonValue replyTo = QJsonValue::Null;
    if (m.replyTo)
        replyTo = object("messageReplyToMessage", {{"chat_id", m.chatID},
                                                   {"message_id", m.replyTo},
                                                   {"quote", QJsonValue::Null},
                                                   {"checklist_task_id", 0},
                                                   {"poll_option_id", QString()},
                                                   {"origin", QJsonValue::Null},
                                                   {"origin_send_date", 0},
                                                   {"content", QJsonValue::Null}});
    const bool hasInteraction = !m.reactions.empty() || m.views > 0;
    return object(
        "message",
        {{"id", m.id},
         {"sender_id", senderJson(m)},
         {"receiver_id", QJsonValue::Null},
         {"chat_id", m.chatID},
         {"sending_state", m.pending ? QJsonValue(object("messageSendingStatePending", {{"sending_id", 0}}))
                                     : QJsonValue(QJsonValue::Null)},
         {"scheduling_state", QJsonValue::Null},
         {"is_outgoing", m.outgoing},
         {"is_pinned", false},
         {"is_from_offline", false},
         {"can_be_saved", true},
         {"has_timestamped_media", true},
         {"is_channel_post", channel},
         {"is_paid_star_suggested_post", false},
         {"is_paid_gram_suggested_post", false},
         {"contains_unread_mention", false},
         {"contains_unread_poll_votes", false},
         {"date", m.date},
         {"edit_date", m.editDate},
         {"forward_info", forward},
         {"import_info", QJsonValue::Null},
         {"interaction_info", hasInteraction ? QJsonValue(interactionInfoJson(m)) : QJsonValue(QJsonValue::Null)},
         {"unread_reactions", QJsonArray{}},
         {"fact_check", QJsonValue::Null},
         {"suggested_post_info", QJsonValue::Null},
         {"reply_to", replyTo},
         {"topic_id", QJsonValue::Null},
         {"self_destruct_type", QJsonValue::Null},
         {"self_destruct_in", 0.0},
         {"auto_delete_in", 0.0},
         {"via_bot_user_id", 0},
         {"guest_bot_caller_id", QJsonValue::Null},
         {"sender_business_bot_user_id", 0},
         {"sender_boost_count", 0},
         {"sender_tag", QString()},
         {"paid_message_star_count", 0},
         {"author_signature", QString()},
         {"media_album_id", int64String(m.albumID)},
         {"effect_id", int64String(0)},
         {"restriction_info", QJsonValue::Null},
         {"summary_language_code", QString()},
         {"content", filled(m.content)},
         {"reply_markup", QJsonValue::Null},
         {"ephemeral_message_id", 0}});
}

QJsonObject Account::stickerJson(qint64 stickerID) const
{
    const DemoSticker *s = sticker(stickerID);
    if (!s)
        return {};
    return object("sticker",
                  {{"id", int64String(s->id)},
                   {"set_id", int64String(s->setID)},
                   {"width", 512},
                   {"height", 512},
                   {"emoji", s->emoji},
                   {"format", object(s->animated ? "stickerFormatTgs" : "stickerFormatWebp")},
                   {"full_type", object("stickerFullTypeRegular", {{"premium_animation", QJsonValue::Null}})},
                   {"thumbnail", QJsonValue::Null},
                   {"sticker", fileJson(s->fileID)}});
}

namespace {

// The fields a sticker set and its short description share.
QJsonObject stickerSetObject(const char *type, const DemoStickerSet &set, std::initializer_list<Field> extra)
{
    QJsonObject result = object(type, {{"id", int64String(set.id)},
                                       {"title", set.title},
                                       {"name", set.name},
                                       {"thumbnail", QJsonValue::Null},
                                       {"thumbnail_outline", QJsonValue::Null},
                                       {"is_owned", false},
                                       {"is_installed", set.installed},
                                       {"is_archived", false},
                                       {"is_official", set.official},
                                       {"sticker_type", object("stickerTypeRegular")},
                                       {"needs_repainting", false},
                                       {"is_allowed_as_chat_emoji_status", false},
                                       {"is_viewed", true}});
    for (const Field &field : extra)
        result.insert(QLatin1StringView(field.first), field.second);
    return result;
}

} // namespace

QJsonObject Account::stickerSetInfoJson(const DemoStickerSet &set) const
{
    QJsonArray covers;
    for (size_t i = 0; i < set.stickers.size() && i < 5; ++i)
        covers.append(stickerJson(set.stickers[i]));
    return stickerSetObject("stickerSetInfo", set, {{"size", int(set.stickers.size())}, {"covers", covers}});
}

QJsonObject Account::stickerSetJson(const DemoStickerSet &set) const
{
    QJsonArray list;
    QJsonArray emojis;
    for (qint64 id : set.stickers) {
        list.append(stickerJson(id));
        emojis.append(object("emojis", {{"emojis", QJsonArray{sticker(id)->emoji}}}));
    }
    return stickerSetObject("stickerSet", set, {{"stickers", list}, {"emojis", emojis}});
}

QJsonObject Account::chatGroupJson(const DemoChat &chat) const
{
    switch (chat.kind) {
    case ChatKind::BasicGroup:
        return object("updateBasicGroup",
                      {{"basic_group",
                        object("basicGroup", {{"id", chat.groupID},
                                              {"member_count", chat.memberCount},
                                              {"status", object("chatMemberStatusMember", {{"member_until_date", 0}})},
                                              {"is_active", true},
                                              {"upgraded_to_supergroup_id", 0}})}});
    case ChatKind::Supergroup:
    case ChatKind::Channel: {
        const bool channel = chat.kind == ChatKind::Channel;
        return object("updateSupergroup",
                      {{"supergroup",
                        object("supergroup", {{"id", chat.groupID},
                                              {"usernames", QJsonValue::Null},
                                              {"date", m_now - 86400 * 400},
                                              {"status", object("chatMemberStatusMember", {{"member_until_date", 0}})},
                                              {"member_count", chat.memberCount},
                                              {"boost_level", 0},
                                              {"has_automatic_translation", false},
                                              {"has_linked_chat", false},
                                              {"has_location", false},
                                              {"sign_messages", false},
                                              {"show_message_sender", false},
                                              {"join_to_send_messages", false},
                                              {"join_by_request", false},
                                              {"is_slow_mode_enabled", false},
                                              {"is_channel", channel},
                                              {"is_broadcast_group", false},
                                              {"is_forum", false},
                                              {"is_direct_messages_group", false},
                                              {"is_administered_direct_messages_group", false},
                                              {"verification_status", QJsonValue::Null},
                                              {"has_direct_messages_group", false},
                                              {"has_forum_tabs", false},
                                              {"restriction_info", QJsonValue::Null},
                                              {"paid_message_star_count", 0},
                                              {"active_story_state", QJsonValue::Null}})}});
    }
    case ChatKind::Secret:
        return object("updateSecretChat",
                      {{"secret_chat", object("secretChat", {{"id", chat.groupID},
                                                             {"user_id", chat.userID},
                                                             {"state", object("secretChatStateReady")},
                                                             {"is_outbound", true},
                                                             {"key_hash", QString()},
                                                             {"layer", 144}})}});
    case ChatKind::Private:
        break;
    }
    return {};
}

} // namespace demo
