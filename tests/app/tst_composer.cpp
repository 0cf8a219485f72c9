// What the composer sends and offers: files sorted into photos and documents or
// refused, the emoji catalog and its search, the "Forward to" chooser's filter,
// and sizes and durations as shown.

#include "../support/ModelRecords.h"
#include "Attachments.h"
#include "ChatListModel.h"
#include "ChatViewModel.h"
#include "EmojiCatalog.h"
#include "EmojiModels.h"
#include "SearchFilterModel.h"
#include "app/Formats.h"

#include "session/UserDefaults.h"

#include <QAbstractItemModelTester>
#include <QImage>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

QString writeFile(const QTemporaryDir &folder, const QString &name, const QByteArray &data)
{
    QFile file(folder.filePath(name));
    if (!file.open(QIODevice::WriteOnly))
        return {};
    file.write(data);
    return file.fileName();
}

QString writeImage(const QTemporaryDir &folder, const QString &name, const char *format)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QString path = folder.filePath(name);
    image.save(path, format);
    return path;
}

const QByteArray emojiTest = R"(# group: Smileys & Emotion
# subgroup: face-smiling
1F600                                                  ; fully-qualified     # 😀 E1.0 grinning face
1F642                                                  ; fully-qualified     # 🙂 E1.0 slightly smiling face
# group: People & Body
1F44B                                                  ; fully-qualified     # 👋 E0.6 waving hand
1F44B 1F3FB                                            ; fully-qualified     # 👋🏻 E1.0 waving hand: light skin tone
# group: Component
1F3FB                                                  ; component           # 🏻 E1.0 light skin tone
# group: Animals & Nature
1F63A                                                  ; fully-qualified     # 😺 E0.6 grinning cat
263A                                                   ; unqualified         # ☺ E0.6 smiling face
263A FE0F                                              ; fully-qualified     # ☺️ E0.6 smiling face
)";

} // namespace

class ComposerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void picturesGoAsPhotosOtherFilesAsDocuments()
    {
        QTemporaryDir folder;
        const QString png = writeImage(folder, u"red.png"_s, "PNG");
        const QString jpeg = writeImage(folder, u"photo.JPG"_s, "JPEG");
        const QString gif = writeImage(folder, u"moving.gif"_s, "GIF");
        // The content decides, not the name.
        const QString disguised = writeImage(folder, u"scan.dat"_s, "PNG");
        const QString text = writeFile(folder, u"notes.txt"_s, "hello");
        const QString svg = writeFile(folder, u"logo.svg"_s, "<svg xmlns=\"http://www.w3.org/2000/svg\"/>");
        // Nor does a name make a picture of text, or of a picture cut short.
        const QString fake = writeFile(folder, u"fake.png"_s, "not a picture at all");
        QFile whole(png);
        QVERIFY(whole.open(QIODevice::ReadOnly));
        const QString truncated = writeFile(folder, u"cut.png"_s, whole.read(12));
        whole.close();
        QCOMPARE(Attachments::kindFor(fake), PendingAttachmentKind::Document);
        QCOMPARE(Attachments::kindFor(truncated), PendingAttachmentKind::Document);
        QCOMPARE(Attachments::kindFor(png), PendingAttachmentKind::Photo);
        QCOMPARE(Attachments::kindFor(jpeg), PendingAttachmentKind::Photo);
        QCOMPARE(Attachments::kindFor(disguised), PendingAttachmentKind::Photo);
        QCOMPARE(Attachments::kindFor(gif), PendingAttachmentKind::Document);
        QCOMPARE(Attachments::kindFor(text), PendingAttachmentKind::Document);
        QCOMPARE(Attachments::kindFor(svg), PendingAttachmentKind::Document);
        // A picture over Telegram's photo limit goes as a document.
        QFile large(png);
        QVERIFY(large.open(QIODevice::Append));
        QVERIFY(large.resize(Attachments::maximumPhotoSize + 1));
        large.close();
        QCOMPARE(Attachments::kindFor(png), PendingAttachmentKind::Document);
    }

    void filesThatCannotBeSentAreRefused()
    {
        QTemporaryDir folder;
        QCOMPARE(Attachments::refusal(folder.filePath(u"missing"_s)), Attachments::Refusal::Unreadable);
        QCOMPARE(Attachments::refusal(folder.path()), Attachments::Refusal::Folder);
        QCOMPARE(Attachments::refusal(writeFile(folder, u"empty"_s, {})), Attachments::Refusal::Empty);
        QCOMPARE(Attachments::refusal(writeFile(folder, u"fine"_s, "x")), std::nullopt);
        QCOMPARE(Attachments::localPath(u"file:///tmp/a%20b.png"_s), u"/tmp/a b.png"_s);
        QCOMPARE(Attachments::localPath(u"/tmp/c.png"_s), u"/tmp/c.png"_s);
        QCOMPARE(Attachments::localPath(u"https://example.org/d.png"_s), QString());
        QCOMPARE(Attachments::localPath(u"relative.png"_s), QString());
        // A pipe is no file to upload; opening it would wait for a writer.
        const QString pipe = folder.filePath(u"pipe"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QCOMPARE(Attachments::refusal(pipe), Attachments::Refusal::Unreadable);
        const QString locked = writeFile(folder, u"locked"_s, "secret");
        QFile::setPermissions(locked, {});
        if (QFileInfo(locked).isReadable())
            QSKIP("Running as a user who reads everything");
        QCOMPARE(Attachments::refusal(locked), Attachments::Refusal::Unreadable);
    }

    void theQueueSortsRefusesAndSendsPicturesAsFilesOnRequest()
    {
        QTemporaryDir folder;
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"One"_s)});
        model.setCanSendMessages(true);
        QList<PendingAttachment> sent;
        model.liveAttachmentsHandler = [&](const QList<PendingAttachment> &attachments, const QString &,
                                           const QString &) { sent = attachments; };
        const QString png = writeImage(folder, u"red.png"_s, "PNG");
        const QString pdf = writeFile(folder, u"a.pdf"_s, "%PDF-1.4");
        model.queueFiles(
            {QUrl::fromLocalFile(png).toString(), pdf, folder.filePath(u"gone.txt"_s), u"https://example.org/x.png"_s});
        QCOMPARE(model.pendingAttachments().size(), 2);
        QCOMPARE(model.pendingAttachments().at(0).kind, PendingAttachmentKind::Photo);
        QCOMPARE(model.pendingAttachments().at(1).kind, PendingAttachmentKind::Document);
        QCOMPARE(model.refusedFiles().size(), 2);
        QCOMPARE(model.refusedFiles().first().toMap().value(u"name"_s), u"gone.txt"_s);
        QVERIFY(!model.picturesSentAsFiles());
        model.setPicturesSentAsFiles(true);
        QCOMPARE(model.pendingAttachments().at(0).kind, PendingAttachmentKind::Document);
        QVERIFY(model.picturesSentAsFiles());
        // A picture queued now follows the choice.
        model.queueFiles({writeImage(folder, u"blue.png"_s, "PNG")});
        QCOMPARE(model.pendingAttachments().at(2).kind, PendingAttachmentKind::Document);
        QVERIFY(model.refusedFiles().isEmpty());
        model.setPicturesSentAsFiles(false);
        QCOMPARE(model.pendingAttachments().at(0).kind, PendingAttachmentKind::Photo);
        QCOMPARE(model.pendingAttachments().at(1).kind, PendingAttachmentKind::Document);
        model.queueFiles({folder.filePath(u"gone"_s)});
        model.sendMessage();
        QCOMPARE(sent.size(), 3);
        QVERIFY(model.pendingAttachments().isEmpty());
        QVERIFY(model.refusedFiles().isEmpty());
    }

    void aStickerLeavesTheQueuedFilesAndTheirCaption()
    {
        QTemporaryDir folder;
        ChatViewModel model(nullptr);
        model.replaceChats({makeChat(u"1"_s, u"One"_s)});
        model.selectChat(u"1"_s);
        model.setCanSendMessages(true);
        QList<PendingAttachment> sentFiles;
        QStringList sentTexts;
        QList<qint64> sentStickers;
        model.liveAttachmentsHandler = [&](const QList<PendingAttachment> &attachments, const QString &caption,
                                           const QString &) {
            sentFiles = attachments;
            sentTexts.append(caption);
        };
        model.liveSendHandler = [&](const QString &text, const QString &, const std::optional<QString> &) {
            sentTexts.append(text);
        };
        model.liveStickerHandler = [&](const StickerChoice &sticker, const QString &) {
            sentStickers.append(sticker.id);
        };
        StickerChoice sticker;
        sticker.id = 7;
        model.setRecentStickers({sticker});
        model.queueFiles({writeImage(folder, u"pasted.png"_s, "PNG")});
        model.setComposerText(u"The caption"_s);
        model.sendStickerAt(0);
        QCOMPARE(sentStickers, QList<qint64>{7});
        QCOMPARE(model.pendingAttachments().size(), 1);
        QCOMPARE(model.composerText(), u"The caption"_s);
        QVERIFY(sentTexts.isEmpty());
        model.sendMessage();
        QCOMPARE(sentFiles.size(), 1);
        QCOMPARE(sentTexts, QStringList{u"The caption"_s});
        // With nothing queued, the text goes first, then the sticker.
        model.setComposerText(u"Look"_s);
        model.sendStickerAt(0);
        QCOMPARE(sentTexts.last(), u"Look"_s);
        QCOMPARE(sentStickers.size(), 2);
        QVERIFY(model.composerText().isEmpty());
    }

    void theCatalogKeepsWhatAPersonPicks()
    {
        const QList<EmojiEntry> entries = EmojiCatalog::parse(emojiTest);
        QStringList emoji;
        for (const EmojiEntry &entry : entries)
            emoji.append(entry.emoji);
        // Skin-tone variants, components and unqualified forms are left out.
        QCOMPARE(emoji, (QStringList{u"😀"_s, u"🙂"_s, u"👋"_s, u"😺"_s, u"☺️"_s}));
        QCOMPARE(entries.at(2).group, EmojiGroup::PeopleAndBody);
        QCOMPARE(entries.at(3).name, u"grinning cat"_s);
        QCOMPARE(entries.at(3).characterName, u"smiling cat face with open mouth"_s);
        QCOMPARE(entries.at(4).characterName, u"white smiling face"_s);
        // Every word counts, from the short name or ICU's name, in any case.
        QVERIFY(EmojiCatalog::matches(entries.at(3), u"Cat grinning"_s));
        QVERIFY(EmojiCatalog::matches(entries.at(3), u"open mouth"_s));
        QVERIFY(!EmojiCatalog::matches(entries.at(3), u"cat sad"_s));
        QVERIFY(EmojiCatalog::matches(entries.at(3), u"😺"_s));
        QVERIFY(EmojiCatalog::matches(entries.at(0), u"  "_s));
        // The compiled-in catalog is Unicode's whole set.
        QVERIFY(EmojiCatalog::all().size() > 1500);
    }

    void theEmojiListPutsRecentOnesFirstAndSearchesOnce()
    {
        UserDefaults::setValue(QString::fromLatin1(EmojiListModel::recentKey), QStringList());
        EmojiListModel all;
        EmojiSearchModel found;
        found.setSourceModel(&all);
        QAbstractItemModelTester allTester(&all, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QAbstractItemModelTester foundTester(&found, QAbstractItemModelTester::FailureReportingMode::QtTest);
        const int total = all.rowCount();
        QCOMPARE(found.firstRowOf(EmojiGroup::Recent), -1);
        all.remember(u"😺"_s);
        all.remember(u"🙂"_s);
        all.remember(u"😺"_s);
        QCOMPARE(all.rowCount(), total + 2);
        QCOMPARE(column(all, EmojiListModel::EmojiRole).mid(0, 2), (QStringList{u"😺"_s, u"🙂"_s}));
        QCOMPARE(found.firstRowOf(EmojiGroup::SmileysAndEmotion), 2);
        found.setProperty("searchText", u"grinning cat"_s);
        QCOMPARE(column(found, EmojiListModel::EmojiRole), (QStringList{u"😺"_s, u"😸"_s}));
        found.setProperty("searchText", QString());
        QCOMPARE(found.rowCount(), total + 2);
        // The recent ones persist, newest first, and an unknown one is dropped.
        UserDefaults::setValue(QString::fromLatin1(EmojiListModel::recentKey),
                               QStringList{u"🙂"_s, u"not an emoji"_s, u"😺"_s});
        EmojiListModel again;
        QCOMPARE(column(again, EmojiListModel::EmojiRole).mid(0, 3), (QStringList{u"🙂"_s, u"😺"_s, u"😀"_s}));
    }

    void theForwardChooserFiltersEveryChatByTitle()
    {
        ChatViewModel model(nullptr);
        model.replaceChats(
            {makeChat(u"1"_s, u"Liam Chen"_s), makeChat(u"2"_s, u"Lab"_s), makeChat(u"3"_s, u"Émile"_s)});
        // The sidebar's search does not narrow the chooser.
        model.setSearchText(u"Lab"_s);
        ChatListModel chats(&model, ChatListModel::Rows::All);
        SearchFilterModel filtered;
        filtered.setSourceModel(&chats);
        QAbstractItemModelTester tester(&filtered, QAbstractItemModelTester::FailureReportingMode::QtTest);
        QCOMPARE(filtered.rowCount(), 3);
        filtered.setProperty("searchText", u"CHEN"_s);
        QCOMPARE(column(filtered, ChatListModel::TitleRole), (QStringList{u"Liam Chen"_s}));
        filtered.setProperty("searchText", u"ÉMILE"_s);
        QCOMPARE(column(filtered, ChatListModel::TitleRole), (QStringList{u"Émile"_s}));
        model.replaceChats({makeChat(u"3"_s, u"Émile"_s), makeChat(u"4"_s, u"Emilia"_s)});
        QCOMPARE(filtered.rowCount(), 1);
    }

    void sizesDurationsAndDaysReadAsPeopleSayThem()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        QCOMPARE(Formats::duration(7), u"0:07"_s);
        QCOMPARE(Formats::duration(750), u"12:30"_s);
        QCOMPARE(Formats::duration(3723), u"1:02:03"_s);
        QCOMPARE(Formats::duration(-3), u"0:00"_s);
        QCOMPARE(Formats::dataSize(1200000), u"1.2 MB"_s); // decimal units, as file managers show them
        QCOMPARE(Formats::dataSize(820), u"820 bytes"_s);

        const QDate today(2025, 10, 9); // a Thursday
        QCOMPARE(Formats::dayLabel(today, today), u"Today"_s);
        QCOMPARE(Formats::dayLabel(today.addDays(-1), today), u"Yesterday"_s);
        QCOMPARE(Formats::dayLabel(today.addDays(-3), today), u"Monday"_s);
        QCOMPARE(Formats::dayLabel(today.addDays(-7), today), u"2 October"_s);
        QCOMPARE(Formats::dayLabel(QDate(2024, 12, 31), today), u"31 December 2024"_s);
        // A day after today (a clock set back) is a date, not a weekday.
        QCOMPARE(Formats::dayLabel(today.addDays(2), today), u"11 October"_s);
        QCOMPARE(Formats::dayLabel(QDateTime()), QString());
    }

    void coordinatesAndDurationsInOtherLanguages()
    {
        const QLocale english(QLocale::English, QLocale::UnitedKingdom);
        for (const QLocale &locale :
             {english, QLocale(QLocale::German, QLocale::Germany), QLocale(QLocale::Persian, QLocale::Iran)}) {
            QLocale::setDefault(locale);
            // A German comma would run into the separator between the two numbers.
            QCOMPARE(Formats::coordinates(51.5007, -0.1246), u"51.50070° N, 0.12460° W"_s);
            QCOMPARE(Formats::coordinates(-33.8568, 151.2153), u"33.85680° S, 151.21530° E"_s);
        }
        QCOMPARE(Formats::coordinates(qQNaN(), 1.0), QString());
        QLocale::setDefault(QLocale(QLocale::Persian, QLocale::Iran));
        QCOMPARE(Formats::duration(7), u"۰:۰۷"_s);
        QCOMPARE(Formats::duration(3723), u"۱:۰۲:۰۳"_s);
        QLocale::setDefault(english);
        QCOMPARE(Formats::duration(36000), u"10:00:00"_s);
    }
};

QTEST_GUILESS_MAIN(ComposerTest)
#include "tst_composer.moc"
