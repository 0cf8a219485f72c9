#include "SyncGenerator.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 baseDate = 1700000000;

QJsonObject file(qint64 id, bool downloaded)
{
    return {{"@type"_L1, u"file"_s},
            {"id"_L1, id},
            {"size"_L1, 4096},
            {"expected_size"_L1, 4096},
            {"local"_L1, QJsonObject{{"@type"_L1, u"localFile"_s},
                                     {"path"_L1, downloaded ? u"/tmp/vost-bench/%1.jpg"_s.arg(id) : QString()},
                                     {"can_be_downloaded"_L1, true},
                                     {"is_downloading_completed"_L1, downloaded},
                                     {"downloaded_size"_L1, downloaded ? 4096 : 0}}},
            {"remote"_L1, QJsonObject{{"@type"_L1, u"remoteFile"_s}, {"id"_L1, u"AgAC%1"_s.arg(id)}}}};
}

QJsonObject position(const QString &list, qint64 order, bool pinned)
{
    return {{"@type"_L1, u"chatPosition"_s},
            {"list"_L1, QJsonObject{{"@type"_L1, list}}},
            {"order"_L1, QString::number(order)},
            {"is_pinned"_L1, pinned},
            {"source"_L1, QJsonValue::Null}};
}

QJsonObject message(qint64 chatID, qint64 id, qint64 userID, qint64 date, int n)
{
    return {
        {"@type"_L1, u"message"_s},
        {"id"_L1, id},
        {"chat_id"_L1, chatID},
        {"sender_id"_L1, QJsonObject{{"@type"_L1, u"messageSenderUser"_s}, {"user_id"_L1, userID}}},
        {"date"_L1, date},
        {"is_outgoing"_L1, n % 3 == 0},
        {"content"_L1, QJsonObject{{"@type"_L1, u"messageText"_s},
                                   {"text"_L1, QJsonObject{{"@type"_L1, u"formattedText"_s},
                                                           {"text"_L1, u"Message number %1, see you at 7 :)"_s.arg(n)},
                                                           {"entities"_L1, QJsonArray()}}}}}};
}

QByteArray compact(const QJsonObject &object)
{
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

} // namespace

QByteArrayList generateInitialSync(int chatCount)
{
    QRandomGenerator random(42);
    QByteArrayList events;
    QList<qint64> avatarFiles;
    for (int n = 0; n < chatCount; ++n) {
        const bool isPrivate = n % 4 != 0;
        const qint64 userID = 100000 + n;
        const qint64 chatID = isPrivate ? userID : -1000000000000 - n;
        const qint64 date = baseDate - qint64(random.bounded(90 * 86400));
        const qint64 order = (date << 32) + n;
        const QString list = n % 10 == 9 ? u"chatListArchive"_s : u"chatListMain"_s;
        const qint64 avatarFile = 1000000 + n;
        avatarFiles.append(avatarFile);

        if (isPrivate) {
            events.append(compact(
                {{"@type"_L1, u"updateUser"_s},
                 {"user"_L1, QJsonObject{{"@type"_L1, u"user"_s},
                                         {"id"_L1, userID},
                                         {"first_name"_L1, u"Person"_s},
                                         {"last_name"_L1, u"Number %1"_s.arg(n)},
                                         {"phone_number"_L1, u"4477009%1"_s.arg(n, 5, 10, QChar(u'0'))},
                                         {"status"_L1, QJsonObject{{"@type"_L1, n % 7 == 0 ? u"userStatusOnline"_s
                                                                                           : u"userStatusOffline"_s},
                                                                   {"was_online"_L1, date}}},
                                         {"is_contact"_L1, n % 2 == 0},
                                         {"type"_L1, QJsonObject{{"@type"_L1, u"userTypeRegular"_s}}}}}}));
        }
        const QJsonObject type = isPrivate ? QJsonObject{{"@type"_L1, u"chatTypePrivate"_s}, {"user_id"_L1, userID}}
                                           : QJsonObject{{"@type"_L1, u"chatTypeSupergroup"_s},
                                                         {"supergroup_id"_L1, 1000 + n},
                                                         {"is_channel"_L1, n % 8 == 0}};
        events.append(compact(
            {{"@type"_L1, u"updateNewChat"_s},
             {"chat"_L1,
              QJsonObject{{"@type"_L1, u"chat"_s},
                          {"id"_L1, chatID},
                          {"type"_L1, type},
                          {"title"_L1, isPrivate ? u"Person Number %1"_s.arg(n) : u"Group %1"_s.arg(n)},
                          {"photo"_L1, QJsonObject{{"@type"_L1, u"chatPhotoInfo"_s},
                                                   {"small"_L1, file(avatarFile, false)},
                                                   {"big"_L1, file(avatarFile + 5000000, false)}}},
                          {"positions"_L1, QJsonArray()},
                          {"unread_count"_L1, n % 5 == 0 ? n % 17 : 0},
                          {"last_read_inbox_message_id"_L1, 1048576 * 10},
                          {"notification_settings"_L1, QJsonObject{{"@type"_L1, u"chatNotificationSettings"_s},
                                                                   {"mute_for"_L1, n % 6 == 0 ? 2147483647 : 0}}},
                          {"is_marked_as_unread"_L1, false}}}}));
        events.append(compact({{"@type"_L1, u"updateChatLastMessage"_s},
                               {"chat_id"_L1, chatID},
                               {"last_message"_L1, message(chatID, 1048576 * 12, userID, date, n)},
                               {"positions"_L1, QJsonArray{position(list, order, n < 5)}}}));
        events.append(compact({{"@type"_L1, u"updateChatPosition"_s},
                               {"chat_id"_L1, chatID},
                               {"position"_L1, position(list, order + 1, n < 5)}}));
    }
    for (qint64 fileID : std::as_const(avatarFiles))
        events.append(compact({{"@type"_L1, u"updateFile"_s}, {"file"_L1, file(fileID, true)}}));
    return events;
}
