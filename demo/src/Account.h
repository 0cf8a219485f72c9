#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QString>

#include <map>
#include <vector>

// The simulated Telegram account: users, chats with their histories, files and
// sticker sets, and the TDLib objects that describe them.
namespace demo {

// How a file's bytes are made when it is downloaded.
enum class FileRecipe { Photo, Avatar, StickerWebp, StickerTgs, Animation, Video, Voice, Audio, Pdf, Text, Uploaded };

struct DemoFile {
    int id = 0;
    FileRecipe recipe = FileRecipe::Photo;
    int width = 0;
    int height = 0;
    int seed = 0;
    QString folder; // TDLib's folder inside files_directory: photos, stickers, ...
    QString name;
    qint64 size = 0;
    QString localPath;
    bool completed = false;
    bool downloading = false;
    qint64 downloaded = 0;
    bool uploading = false;
};

// The bytes a download of the file writes; empty for a file the user uploaded.
QByteArray makeBytes(const DemoFile &file);

enum class Presence { Online, Offline, Recently };

struct DemoUser {
    qint64 id = 0;
    QString firstName;
    QString lastName;
    QString username;
    QString phone;
    Presence presence = Presence::Offline;
    int wasOnline = 0;
    bool isContact = false;
    bool isBot = false;
    int photoSmall = 0;
    int photoBig = 0;
};

struct DemoReaction {
    QString emoji; // empty for a custom emoji
    qint64 customEmojiID = 0;
    int count = 0;
    bool chosen = false;
};

struct DemoMessage {
    qint64 id = 0;
    qint64 chatID = 0;
    qint64 senderUserID = 0; // 0: the chat itself is the sender (channel posts)
    bool outgoing = false;
    bool pending = false;
    int date = 0;
    int editDate = 0;
    QJsonObject content; // file objects inside hold only their id and are filled in when written
    qint64 albumID = 0;
    qint64 replyTo = 0;
    qint64 forwardedFromUser = 0;
    int forwardDate = 0;
    int views = 0;
    std::vector<DemoReaction> reactions;
};

enum class ChatKind { Private, BasicGroup, Supergroup, Channel, Secret };

struct DemoChat {
    qint64 id = 0;
    ChatKind kind = ChatKind::Private;
    qint64 userID = 0;  // private and secret chats
    qint64 groupID = 0; // basic group, supergroup or secret chat id
    QString title;
    int photoSmall = 0;
    int photoBig = 0;
    bool archived = false;
    int pinIndex = 0; // 0: not pinned; 1 is the top
    bool muted = false;
    bool markedUnread = false;
    QString draft;
    qint64 lastReadInbox = 0;
    qint64 lastReadOutbox = 0;
    int memberCount = 0;
    bool inList = true;     // false once deleted from the chat list
    bool announced = false; // updateNewChat sent to the client
    std::map<qint64, DemoMessage> messages;
    qint64 nextLocalID = 1;
};

struct DemoSticker {
    qint64 id = 0;
    qint64 setID = 0;
    QString emoji;
    bool animated = false;
    int fileID = 0;
};

struct DemoStickerSet {
    qint64 id = 0;
    QString title;
    QString name;
    bool installed = false;
    bool official = false;
    std::vector<qint64> stickers;
};

class Account
{
public:
    // Builds the account as it stands at `now` (Unix seconds).
    Account(qint64 selfID, const QString &firstName, const QString &phone, int now);

    qint64 selfID() const { return m_selfID; }
    int now() const { return m_now; }
    void setNow(int now) { m_now = now; }
    QString filesDirectory;

    // Objects in TDLib's shapes.
    QJsonObject userJson(qint64 userID) const;
    QJsonObject userStatusJson(const DemoUser &user) const;
    QJsonObject chatJson(const DemoChat &chat) const;
    QJsonArray positionsJson(const DemoChat &chat) const;
    QJsonObject messageJson(const DemoMessage &message) const;
    QJsonValue lastMessageJson(const DemoChat &chat) const;
    QJsonObject fileJson(int fileID) const;
    QJsonObject stickerJson(qint64 stickerID) const;
    QJsonObject stickerSetInfoJson(const DemoStickerSet &set) const;
    QJsonObject stickerSetJson(const DemoStickerSet &set) const;
    QJsonObject interactionInfoJson(const DemoMessage &message) const;
    QJsonObject notificationSettingsJson(const DemoChat &chat) const;
    QJsonObject chatGroupJson(const DemoChat &chat) const; // updateBasicGroup / updateSupergroup / updateSecretChat
    QJsonValue filled(const QJsonValue &value) const;      // replaces file placeholders by current file objects

    qint64 order(const DemoChat &chat) const;
    int unreadCount(const DemoChat &chat) const;
    // Chats of one list, in the list's order.
    std::vector<qint64> chatList(bool archive) const;

    DemoChat *chat(qint64 chatID);
    const DemoChat *chat(qint64 chatID) const;
    DemoUser *user(qint64 userID);
    const DemoUser *user(qint64 userID) const;
    DemoFile *file(int fileID);
    DemoMessage *message(qint64 chatID, qint64 messageID);
    const DemoSticker *sticker(qint64 stickerID) const;
    const DemoSticker *stickerByFile(int fileID) const;
    const DemoStickerSet *stickerSet(qint64 setID) const;
    DemoChat *privateChatWith(qint64 userID);

    qint64 nextServerMessageID(DemoChat &chat) const;
    int newFile(FileRecipe recipe, const QString &folder, const QString &name, int width, int height, int seed,
                qint64 size);
    qint64 newAlbumID() { return ++m_lastAlbumID; }
    qint64 botID() const { return m_botID; }
    qint64 serviceID() const { return 777000; }

    // Content builders; the files they create are downloaded on request.
    QJsonObject textContent(const QString &text) const;
    QJsonObject photoContent(int seed, int width, int height, const QString &caption);
    QJsonObject stickerContent(qint64 stickerID) const;
    QJsonObject fileRef(int fileID) const;

    std::map<qint64, DemoUser> users;
    std::map<qint64, DemoChat> chats;
    std::map<int, DemoFile> files;
    std::map<qint64, DemoSticker> stickers;
    std::vector<DemoStickerSet> stickerSets;
    std::vector<qint64> recentStickers;
    std::vector<qint64> trendingSets;

private:
    friend class AccountBuilder;
    qint64 m_selfID = 0;
    qint64 m_botID = 0;
    int m_now = 0;
    int m_lastFileID = 0;
    qint64 m_lastAlbumID = 13000000000000000LL;
};

} // namespace demo
