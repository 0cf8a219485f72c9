// The list models follow the view model row by row, and stay consistent models
// while they do (QAbstractItemModelTester checks every signal they send).

#include "../support/ModelRecords.h"
#include "ArchiveFilterModel.h"
#include "ChatListModel.h"
#include "ChatViewModel.h"
#include "ChoiceListModels.h"
#include "MessageListModel.h"

#include <QAbstractItemModelTester>
#include <QFile>
#include <QImage>
#include <QJsonDocument>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

Chat makeChat(int id, const QString &title = {})
{
    Chat chat;
    chat.id = QString::number(id);
    chat.title = title.isEmpty() ? u"Chat "_s + chat.id : title;
    chat.preview = u"preview "_s + chat.id;
    return chat;
}

Message makeMessage(int id, const QString &sender, bool unread = false)
{
    Message message;
    message.id = QString::number(id);
    message.sender.name = sender;
    message.text = u"message "_s + message.id;
    message.isUnread = unread;
    return message;
}

} // namespace

class ListModelsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void chatListChangesByRows()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QList<Chat> chats;
        for (int i = 1; i <= 6; ++i)
            chats.append(makeChat(i));
        viewModel.replaceChats(chats); // the first fill of an empty list
        QCOMPARE(column(model, ChatListModel::IdRole), chatIDs(chats));

        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removes(&model, &QAbstractItemModel::rowsRemoved);
        QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
        QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);

        // A new message moves chat 5 to the top and changes its preview.
        chats.move(4, 0);
        chats[0].preview = u"new"_s;
        viewModel.replaceChats(chats);
        QCOMPARE(moves.size(), 1);
        QCOMPARE(changes.size(), 1);
        QCOMPARE(model.index(0).data(ChatListModel::PreviewRole).toString(), u"new"_s);

        // A pinned chat drops down the list.
        chats.move(0, 4);
        viewModel.replaceChats(chats);
        QCOMPARE(moves.size(), 2);

        // New chats arrive in the middle and at the end; one is deleted.
        chats.insert(2, makeChat(7));
        chats.insert(3, makeChat(8));
        chats.append(makeChat(9));
        chats.removeAt(0);
        viewModel.replaceChats(chats);
        QCOMPARE(inserts.size(), 2);
        QCOMPARE(removes.size(), 1);
        QCOMPARE(column(model, ChatListModel::IdRole), chatIDs(chats));
        QCOMPARE(resets.size(), 0);
        QCOMPARE(model.count(), chats.size());
    }

    void chatListFollowsSearchAndSelection()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        viewModel.replaceChats({makeChat(1, u"Lab"_s), makeChat(2, u"Bea"_s), makeChat(3, u"Abe"_s)});
        QVERIFY(model.index(0).data(ChatListModel::IsSelectedRole).toBool());
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);

        viewModel.setSearchText(u"ab"_s);
        QCOMPARE(column(model, ChatListModel::IdRole), (QStringList{u"1"_s, u"3"_s}));
        viewModel.setSearchText(u"abe"_s);
        QCOMPARE(column(model, ChatListModel::IdRole), (QStringList{u"3"_s}));
        viewModel.setSelectedChatID(u"3"_s);
        QVERIFY(model.index(0).data(ChatListModel::IsSelectedRole).toBool());
        viewModel.setSearchText(QString());
        QCOMPARE(column(model, ChatListModel::IdRole), (QStringList{u"1"_s, u"2"_s, u"3"_s}));
        QVERIFY(!model.index(0).data(ChatListModel::IsSelectedRole).toBool());
        QVERIFY(model.index(2).data(ChatListModel::IsSelectedRole).toBool());
        QCOMPARE(resets.size(), 0);
        QCOMPARE(model.rowOf(u"2"_s), 1);
    }

    void chatListSurvivesShuffles()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QRandomGenerator random(7);
        QList<Chat> chats;
        int next = 1;
        for (; next <= 40; ++next)
            chats.append(makeChat(next));
        viewModel.replaceChats(chats);
        for (int round = 0; round < 60; ++round) {
            const int changes = 1 + int(random.bounded(4));
            for (int c = 0; c < changes; ++c) {
                switch (random.bounded(4)) {
                case 0:
                    chats.insert(int(random.bounded(int(chats.size()) + 1)), makeChat(next++));
                    break;
                case 1:
                    if (!chats.isEmpty())
                        chats.removeAt(int(random.bounded(int(chats.size()))));
                    break;
                case 2:
                    if (chats.size() > 1)
                        chats.move(int(random.bounded(int(chats.size()))), int(random.bounded(int(chats.size()))));
                    break;
                default:
                    if (!chats.isEmpty())
                        chats[int(random.bounded(int(chats.size())))].unreadCount += 1;
                }
            }
            viewModel.replaceChats(chats);
            QCOMPARE(column(model, ChatListModel::IdRole), chatIDs(chats));
            QCOMPARE(column(model, ChatListModel::UnreadCountRole).size(), chats.size());
        }
        // A reversal is too large to move row by row: the list is reset, and right.
        std::reverse(chats.begin(), chats.end());
        viewModel.replaceChats(chats);
        QCOMPARE(column(model, ChatListModel::IdRole), chatIDs(chats));
    }

    void largeListUpdatesCheaply()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel model(&viewModel);
        QList<Chat> chats;
        for (int i = 1; i <= 5000; ++i)
            chats.append(makeChat(i));
        viewModel.replaceChats(chats);
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy moves(&model, &QAbstractItemModel::rowsMoved);
        chats.move(4321, 0);
        viewModel.replaceChats(chats);
        QCOMPARE(moves.size(), 1);
        QCOMPARE(resets.size(), 0);
        QCOMPARE(model.idAt(0), u"4322"_s);
    }

    void transcriptChangesByRows()
    {
        // Newest first: the view lays the transcript out from the bottom up.
        ChatViewModel viewModel(nullptr);
        MessageListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        viewModel.replaceChats({makeChat(1), makeChat(2)});
        viewModel.setMessages({makeMessage(10, u"Ann"_s), makeMessage(11, u"Ann"_s, true)}, u"1"_s);
        QCOMPARE(model.chatID(), u"1"_s);
        QCOMPARE(column(model, MessageListModel::IdRole), (QStringList{u"11"_s, u"10"_s}));
        QVERIFY(model.index(0).data(MessageListModel::ShowsUnreadDividerRole).toBool());
        QVERIFY(model.index(1).data(MessageListModel::IsFirstOfGroupRole).toBool());
        QVERIFY(!model.index(0).data(MessageListModel::IsFirstOfGroupRole).toBool());

        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
        QSignalSpy removes(&model, &QAbstractItemModel::rowsRemoved);
        // A new message from someone else arrives at row 0, older history at the end.
        viewModel.setMessages({makeMessage(8, u"Bo"_s), makeMessage(9, u"Bo"_s), makeMessage(10, u"Ann"_s),
                               makeMessage(11, u"Ann"_s, true), makeMessage(12, u"Bo"_s, true)},
                              u"1"_s);
        QCOMPARE(inserts.size(), 2);
        QCOMPARE(inserts.first().at(1).toInt(), 0);
        QCOMPARE(inserts.last().at(1).toInt(), 3);
        QCOMPARE(column(model, MessageListModel::IdRole), (QStringList{u"12"_s, u"11"_s, u"10"_s, u"9"_s, u"8"_s}));
        QVERIFY(model.index(0).data(MessageListModel::IsFirstOfGroupRole).toBool());

        // Ann's first message is deleted: her second now starts her group.
        Message edited = makeMessage(11, u"Ann"_s, true);
        edited.text = u"edited"_s;
        edited.reactions = {{u"👍"_s, 1, true}};
        viewModel.setMessages({makeMessage(8, u"Bo"_s), makeMessage(9, u"Bo"_s), edited, makeMessage(12, u"Bo"_s)},
                              u"1"_s);
        QCOMPARE(removes.size(), 1);
        QVERIFY(model.index(1).data(MessageListModel::IsFirstOfGroupRole).toBool());
        QCOMPARE(model.index(1).data(MessageListModel::TextRole).toString(), u"edited"_s);
        QCOMPARE(model.index(1).data(MessageListModel::ReactionsRole).toList().size(), 1);
        QCOMPARE(resets.size(), 0);

        // Another chat is another transcript.
        viewModel.setSelectedChatID(u"2"_s);
        QCOMPARE(resets.size(), 1);
        QCOMPARE(model.count(), 0);
        viewModel.setSelectedChatID(std::nullopt);
        QCOMPARE(model.chatID(), QString());
    }

    void transcriptShowsCaptionsNotPreviewTexts()
    {
        // A photo's bubble shows its caption, or no text line at all.
        ChatViewModel viewModel(nullptr);
        MessageListModel model(&viewModel);
        viewModel.replaceChats({makeChat(1)});
        Message photo = makeMessage(20, u"Ann"_s);
        photo.mediaKind = MessageMediaKind::Photo;
        photo.text = u"📷 Photo"_s;
        Message captioned = makeMessage(21, u"Ann"_s);
        captioned.mediaKind = MessageMediaKind::Photo;
        captioned.text = u"Lake"_s;
        const auto details = [](const char *json) { return messageDetails(QJsonDocument::fromJson(json).object()); };
        viewModel.setMessageDetails(
            {details(R"({"id":20,"date":1700000000,"content":{"@type":"messagePhoto","caption":{"text":""}}})"),
             details(R"({"id":21,"content":{"@type":"messagePhoto","caption":{"text":"Lake"}}})")},
            u"1"_s);
        viewModel.setMessages({photo, captioned}, u"1"_s);
        QCOMPARE(model.index(1).data(MessageListModel::BodyTextRole).toString(), QString());
        QCOMPARE(model.index(1).data(MessageListModel::DateRole).toDateTime(),
                 QDateTime::fromSecsSinceEpoch(1700000000));
        QCOMPARE(model.index(0).data(MessageListModel::BodyTextRole).toString(), u"Lake"_s);
        QVERIFY(!model.index(0).data(MessageListModel::DateRole).toDateTime().isValid());
    }

    void aPictureSentAsAFileIsShownAsOneOnlyWhenItIsOne()
    {
        QTemporaryDir folder;
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::green);
        // Names as TDLib gives them: one says PNG and holds a JPEG, one says PNG and
        // holds text.
        const QString jpeg = folder.filePath(u"scan.png"_s);
        QVERIFY(picture.save(jpeg, "JPEG"));
        const QString text = folder.filePath(u"notes.png"_s);
        {
            QFile file(text);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("not a picture\n");
        }
        // A drawing Qt could read, but a stranger's SVG is never rendered.
        const QString drawing = folder.filePath(u"drawing.png"_s);
        {
            QFile file(drawing);
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write("<svg xmlns='http:/"
                       "/www.w3.org/2000/svg' viewBox='0 0 4 4'><rect width='4' height='4'/></svg>");
        }
        ChatViewModel viewModel(nullptr);
        MessageListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        viewModel.replaceChats({makeChat(1)});
        const auto document = [](int id, const QString &name, const QString &type) {
            const QString json = uR"({"id":%1,"content":{"@type":"messageDocument","document":{"file_name":"%2",)"
                                 uR"("mime_type":"%3","document":{"id":%1,"size":14}}}})"_s;
            return messageDetails(QJsonDocument::fromJson(json.arg(id).arg(name, type).toUtf8()).object());
        };
        // What the session makes of a picture sent as a file: a photo, with its
        // path once the file is here.
        const auto message = [](int id, const std::optional<QString> &path) {
            Message sent = makeMessage(id, u"Ann"_s);
            sent.text.clear();
            sent.mediaKind = MessageMediaKind::Photo;
            sent.mediaPath = path;
            return sent;
        };
        QList<Message> messages{message(40, jpeg), message(41, text), message(42, std::nullopt),
                                message(43, std::nullopt), message(44, drawing)};
        viewModel.setMessageDetails(
            {document(40, u"scan.png"_s, u"image/png"_s), document(41, u"notes.png"_s, u"image/png"_s),
             document(42, u"SCAN.JPG"_s, u"application/octet-stream"_s), document(43, u"photo.jpg"_s, u"image/jpeg"_s),
             document(44, u"drawing.png"_s, u"image/png"_s)},
            u"1"_s);
        viewModel.setMessages(messages, u"1"_s);
        const auto kindOf = [&model](const QString &messageID) {
            return MessageContent::Kind(model.index(model.rowOf(messageID)).data(MessageListModel::KindRole).toInt());
        };
        // The bytes decide once the file is here, the type before.
        QCOMPARE(kindOf(u"40"_s), MessageContent::Kind::Photo);
        QCOMPARE(kindOf(u"41"_s), MessageContent::Kind::Document);
        QCOMPARE(kindOf(u"42"_s), MessageContent::Kind::Document);
        QCOMPARE(kindOf(u"43"_s), MessageContent::Kind::Photo);
        QCOMPARE(kindOf(u"44"_s), MessageContent::Kind::Document);
        // The file shows its name and size, and stays out of the viewer.
        const QVariantMap shown = model.index(model.rowOf(u"41"_s)).data(MessageListModel::DetailsRole).toMap();
        QCOMPARE(shown.value(u"fileName"_s).toString(), u"notes.png"_s);
        QCOMPARE(shown.value(u"fileSize"_s).toLongLong(), 14);
        const QVariantList media = model.media();
        QCOMPARE(media.size(), 1);
        QCOMPARE(media.first().toMap().value(u"messageID"_s).toString(), u"40"_s);

        // The file named SCAN.JPG arrives and is a picture after all.
        messages[2].mediaPath = jpeg;
        viewModel.setMessages(messages, u"1"_s);
        QCOMPARE(kindOf(u"42"_s), MessageContent::Kind::Photo);
    }

    void theArchiveKeepsItsChatsApartAndCountsThem()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel chats(&viewModel);
        ArchiveFilterModel archive;
        QAbstractItemModelTester tester(&archive, QAbstractItemModelTester::FailureReportingMode::QtTest);
        archive.setSourceModel(&chats);
        const auto archived = [](int id, int unread) {
            Chat chat = makeChat(id);
            chat.isArchived = true;
            chat.unreadCount = unread;
            return chat;
        };
        viewModel.replaceChats({makeChat(1), archived(2, 3), makeChat(3), archived(4, 1)});
        QTRY_COMPARE(archive.archivedCount(), 2);
        QCOMPARE(archive.archivedUnreadCount(), 4);
        QCOMPARE(column(archive, ChatListModel::IdRole), (QStringList{u"1"_s, u"3"_s}));
        archive.setProperty("showsArchived", true);
        QCOMPARE(column(archive, ChatListModel::IdRole), (QStringList{u"2"_s, u"4"_s}));
        QCOMPARE(archive.rowOf(u"4"_s), 1);
        QCOMPARE(archive.idAt(0), u"2"_s);
        // A chat leaving the archive leaves this list and the count.
        viewModel.replaceChats({makeChat(1), makeChat(2), makeChat(3), archived(4, 1)});
        QCOMPARE(column(archive, ChatListModel::IdRole), (QStringList{u"4"_s}));
        QTRY_COMPARE(archive.archivedUnreadCount(), 1);
        archive.setProperty("searching", true);
        QCOMPARE(archive.rowCount(), 4);
    }

    void albumsShareARowAndPagesArriveByRows()
    {
        ChatViewModel viewModel(nullptr);
        MessageListModel model(&viewModel);
        QAbstractItemModelTester tester(&model, QAbstractItemModelTester::FailureReportingMode::QtTest);
        viewModel.replaceChats({makeChat(1)});
        const auto inAlbum = [](int id, qint64 albumID) {
            Message message = makeMessage(id, u"Ann"_s);
            message.mediaAlbumID = albumID;
            return message;
        };
        // TDLib gives the album id 0 to messages outside albums: they stay apart.
        QList<Message> newest{inAlbum(30, 0), inAlbum(31, 0), inAlbum(32, 77), inAlbum(33, 77), inAlbum(34, 0)};
        viewModel.setMessages(newest, u"1"_s);
        QCOMPARE(column(model, MessageListModel::IdRole), (QStringList{u"34"_s, u"32"_s, u"31"_s, u"30"_s}));
        QCOMPARE(model.index(1).data(MessageListModel::AlbumItemsRole).toList().size(), 2);
        QCOMPARE(model.index(1).data(MessageListModel::AlbumIDRole).toString(), u"77"_s);
        QCOMPARE(model.index(0).data(MessageListModel::AlbumIDRole).toString(), QString());
        QCOMPARE(model.rowOf(u"33"_s), 1);

        // An older page is appended at the end, the album's third photo joins its row.
        QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
        QSignalSpy inserts(&model, &QAbstractItemModel::rowsInserted);
        newest.insert(2, inAlbum(315, 77));
        QList<Message> all{inAlbum(27, 0), inAlbum(28, 0)};
        all += newest;
        viewModel.setMessages(all, u"1"_s);
        QCOMPARE(resets.size(), 0);
        QVERIFY(inserts.size() >= 1);
        QCOMPARE(model.index(model.rowOf(u"32"_s)).data(MessageListModel::AlbumItemsRole).toList().size(), 3);
        QCOMPARE(column(model, MessageListModel::IdRole),
                 (QStringList{u"34"_s, u"315"_s, u"31"_s, u"30"_s, u"28"_s, u"27"_s}));
    }

    void aSavedCopyIsOfferedUnderANameAPersonKnows()
    {
        QTemporaryDir folder;
        const auto write = [&folder](const QString &name, const QByteArray &data) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::WriteOnly))
                file.write(data);
            return file.fileName();
        };
        QImage picture(4, 4, QImage::Format_RGB32);
        picture.fill(Qt::green);
        const QString jpeg = folder.filePath(u"photo_12_y.jpg"_s);
        QVERIFY(picture.save(jpeg, "JPEG"));
        // TDLib's name says JPEG, the bytes say PNG.
        const QString png = folder.filePath(u"photo_13_x.jpg"_s);
        QVERIFY(picture.save(png, "PNG"));
        MessageDetails details;
        details.kind = MessageContent::Kind::Photo;
        details.date = QDateTime(QDate(2026, 11, 24), QTime(14, 3));
        QCOMPARE(MessageListModel::saveName(details, jpeg), u"Photo 2026-11-24 14.03.jpg"_s);
        QCOMPARE(MessageListModel::saveName(details, png), u"Photo 2026-11-24 14.03.png"_s);
        details.kind = MessageContent::Kind::Animation;
        QCOMPARE(MessageListModel::saveName(details, write(u"animation_4.gif"_s, "GIF89a")),
                 u"GIF 2026-11-24 14.03.gif"_s);
        // A file with a name of its own keeps it.
        details.fileName = u"Dance.mp4"_s;
        QCOMPARE(MessageListModel::saveName(details, jpeg), u"Dance.mp4"_s);
        details.fileName.clear();
        details.date = {};
        details.kind = MessageContent::Kind::Photo;
        QCOMPARE(MessageListModel::saveName(details, jpeg), u"Photo.jpg"_s);
    }

    void stickersAndContactsFollowTheViewModel()
    {
        ChatViewModel viewModel(nullptr);
        StickerListModel stickers(&viewModel);
        ContactListModel contacts(&viewModel);
        QAbstractItemModelTester stickerTester(&stickers, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester contactTester(&contacts, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const StickerChoice a{1, 11, u"/a.webp"_s, u"😀"_s, 512, 512, StickerFormat::Webp};
        const StickerChoice b{2, 12, u"/b.tgs"_s, u"🔥"_s, 512, 512, StickerFormat::Animated};
        viewModel.setRecentStickers({a});
        viewModel.setRecentStickers({b, a});
        QCOMPARE(column(stickers, StickerListModel::IdRole), (QStringList{u"2"_s, u"1"_s}));
        QCOMPARE(StickerFormat(stickers.index(0).data(StickerListModel::FormatRole).toInt()), StickerFormat::Animated);

        ContactChoice ann{5, u"Ann"_s, u"ann"_s, u"A"_s, std::nullopt, false};
        viewModel.setContacts({ann});
        ann.isOnline = true;
        QSignalSpy changes(&contacts, &QAbstractItemModel::dataChanged);
        viewModel.setContacts({ann, {6, u"Bo"_s, {}, u"B"_s, std::nullopt, false}});
        QCOMPARE(changes.size(), 1);
        QCOMPARE(column(contacts, ContactListModel::IdRole), (QStringList{u"5"_s, u"6"_s}));
        QVERIFY(contacts.index(0).data(ContactListModel::IsOnlineRole).toBool());
        viewModel.setContacts({});
        QCOMPARE(contacts.count(), 0);
    }

    void foundPeopleLeaveOutTheContactsListedAboveThem()
    {
        ChatViewModel viewModel(nullptr);
        ContactListModel found(&viewModel, ContactListModel::Source::SearchResults);
        QAbstractItemModelTester tester(&found, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const ContactChoice emma{1, u"Emma Wilson"_s, u"emma_w"_s, u"EW"_s, std::nullopt, false};
        const ContactChoice james{2, u"James Wilson"_s, {}, u"JW"_s, std::nullopt, false};
        const ContactChoice liam{3, u"Liam Chen"_s, u"wilson_fan"_s, u"LC"_s, std::nullopt, false};
        viewModel.setContacts({emma, james, liam});
        found.setProperty("listedText", u"wilson"_s);
        // Telegram found all three; the name filter lists Emma and James already.
        viewModel.setContactResults({emma, james, liam});
        QCOMPARE(column(found, ContactListModel::IdRole), (QStringList{u"3"_s}));
        // Found by her username only, Emma is not listed above: she shows here.
        found.setProperty("listedText", u"emma_w"_s);
        viewModel.setContactResults({emma});
        QCOMPARE(column(found, ContactListModel::IdRole), (QStringList{u"1"_s}));
        // A contact removed from the roster is no longer listed above.
        found.setProperty("listedText", u"Wilson"_s);
        viewModel.setContactResults({emma, james});
        QCOMPARE(found.count(), 0);
        viewModel.setContacts({emma});
        QCOMPARE(column(found, ContactListModel::IdRole), (QStringList{u"2"_s}));
    }

    void aSecretChatSaysSo()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel chats(&viewModel);
        Chat open;
        open.id = u"1"_s;
        open.title = u"Mia Taylor"_s;
        Chat secret = open;
        secret.id = u"2"_s;
        secret.isSecret = true;
        viewModel.replaceChats({open, secret});
        QCOMPARE(chats.index(0).data(ChatListModel::IsSecretRole).toBool(), false);
        QCOMPARE(chats.index(1).data(ChatListModel::IsSecretRole).toBool(), true);
        QCOMPARE(chats.roleNames().value(ChatListModel::IsSecretRole), QByteArray("isSecret"));
    }

    void typingComesFromTheFlagNotTheSubtitle()
    {
        ChatViewModel viewModel(nullptr);
        ChatListModel chats(&viewModel);
        QAbstractItemModelTester tester(&chats, QAbstractItemModelTester::FailureReportingMode::QtTest);
        // A group named like a typing line, and a chat whose typist is shown by name.
        Chat named = makeChat(1, u"We are typing…"_s);
        named.subtitle = u"Still typing…"_s;
        Chat typing = makeChat(2);
        typing.subtitle = u"Grace is typing…"_s;
        typing.isTyping = true;
        viewModel.replaceChats({named, typing});
        QCOMPARE(chats.index(0).data(ChatListModel::IsTypingRole).toBool(), false);
        QCOMPARE(chats.index(1).data(ChatListModel::IsTypingRole).toBool(), true);

        QSignalSpy changes(&chats, &QAbstractItemModel::dataChanged);
        typing.isTyping = false;
        viewModel.replaceChats({named, typing});
        QCOMPARE(changes.size(), 1);
        QCOMPARE(chats.index(1).data(ChatListModel::IsTypingRole).toBool(), false);
    }

    void transcriptRolesCarryTheModelsEnumerations()
    {
        ChatViewModel viewModel(nullptr);
        MessageListModel model(&viewModel);
        viewModel.replaceChats({makeChat(1)});
        Message sending = makeMessage(10, u"Ann"_s);
        sending.isOutgoing = true;
        sending.deliveryState = MessageDeliveryState::Sending;
        Message sticker = makeMessage(11, u"Bo"_s);
        sticker.mediaKind = MessageMediaKind::Sticker;
        sticker.stickerFormat = StickerFormat::Video;
        viewModel.setMessages({sending, sticker}, u"1"_s);
        viewModel.setSelectedChatID(u"1"_s);

        const QModelIndex newest = model.index(0);
        const QModelIndex oldest = model.index(1);
        QCOMPARE(MessageDeliveryState(oldest.data(MessageListModel::DeliveryStateRole).toInt()),
                 MessageDeliveryState::Sending);
        QVERIFY(!oldest.data(MessageListModel::MediaKindRole).isValid());
        QCOMPARE(MessageMediaKind(newest.data(MessageListModel::MediaKindRole).toInt()), MessageMediaKind::Sticker);
        QCOMPARE(StickerFormat(newest.data(MessageListModel::StickerFormatRole).toInt()), StickerFormat::Video);
    }
};

QTEST_GUILESS_MAIN(ListModelsTest)
#include "tst_listmodels.moc"
