// What chats and messages show: content texts, previews (spoilers veiled),
// drafts, subtitles, initials, date texts across midnight, file helpers and
// reactions.

#include "session/ContentTexts.h"
#include "session/DateTexts.h"
#include "session/Initials.h"

#include <QJsonDocument>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;

namespace {
// POSIX notation, so that no zone files are needed: one hour east of UTC, two in
// summer, from the last Sunday of March to the last Sunday of October.
constexpr QByteArrayView centralEurope = "CET-1CEST,M3.5.0,M10.5.0/3";
} // namespace

namespace {

TdObject json(const char *text)
{
    return QJsonDocument::fromJson(text).object();
}

} // namespace

class TextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void messageTexts_data()
    {
        QTest::addColumn<QString>("content");
        QTest::addColumn<QString>("bubble");
        QTest::addColumn<QString>("preview");
        QTest::newRow("text") << uR"({"@type":"messageText","text":{"text":"see you"}})"_s << u"see you"_s << u"see you"_s;
        QTest::newRow("text without text") << uR"({"@type":"messageText"})"_s << u"Message"_s << u"Message"_s;
        QTest::newRow("photo with caption")
            << uR"({"@type":"messagePhoto","caption":{"text":"our trip"}})"_s << u"our trip"_s << u"Photo"_s;
        QTest::newRow("photo, empty caption")
            << uR"({"@type":"messagePhoto","caption":{"text":""}})"_s << u"📷 Photo"_s << u"Photo"_s;
        QTest::newRow("video") << uR"({"@type":"messageVideo"})"_s << u"🎬 Video"_s << u"Video"_s;
        QTest::newRow("document") << uR"({"@type":"messageDocument"})"_s << u"📎 Document"_s << u"Document"_s;
        QTest::newRow("audio") << uR"({"@type":"messageAudio"})"_s << u"🎵 Audio"_s << u"Audio"_s;
        QTest::newRow("voice") << uR"({"@type":"messageVoiceNote"})"_s << u"🎤 Voice message"_s << u"Voice message"_s;
        QTest::newRow("animated emoji") << uR"({"@type":"messageAnimatedEmoji","emoji":"🎉"})"_s << u"🎉"_s << u"🎉"_s;
        QTest::newRow("location") << uR"({"@type":"messageLocation"})"_s << u"📍 Location"_s << u"Message"_s;
        QTest::newRow("poll") << uR"({"@type":"messagePoll"})"_s << u"Poll"_s << u"Message"_s;
        QTest::newRow("unknown") << uR"({"@type":"messageDice"})"_s << u"Unsupported message"_s << u"Message"_s;
        QTest::newRow("no type") << u"{}"_s << u"Message"_s << u"Message"_s;
    }
    void messageTexts()
    {
        QFETCH(QString, content);
        QFETCH(QString, bubble);
        QFETCH(QString, preview);
        const TdObject object = QJsonDocument::fromJson(content.toUtf8()).object();
        QCOMPARE(messageText(object), bubble);
        QCOMPARE(previewText(TdObject{{"content"_L1, object}}), preview);
    }

    void previewsAndDrafts()
    {
        QCOMPARE(previewText(std::nullopt), u"No messages yet"_s);
        QCOMPARE(previewText(TdObject{{"id"_L1, 1}}), u"No messages yet"_s);
        QCOMPARE(draftText(json(R"({"input_message_text":{"@type":"inputMessageText","text":{"text":"later"}}})")),
                 u"later"_s);
        QCOMPARE(draftText(json(R"({"content":{"@type":"draftMessageContentText","text":{"text":"now"}}})")), u"now"_s);
        QCOMPARE(draftText(json(R"({"input_message_text":{"@type":"inputMessageVoiceNote"}})")), QString());
        QCOMPARE(draftText(json(R"({"content":{"@type":"draftMessageContentVoiceNote"}})")), QString());
        QCOMPARE(draftText(QJsonValue()), QString());
        QCOMPARE(chatSubtitle(json(R"({"@type":"chatTypeSupergroup","is_channel":true})")), u"Group or channel"_s);
        QCOMPARE(chatSubtitle(QJsonValue()), u"Telegram"_s);
    }

    void spoilersStayVeiledOutsideTheBubble()
    {
        const auto veiled = [](const char *content) {
            const TdObject message{{"content"_L1, json(content)}};
            return std::pair(previewText(message), veiledMessageText(message.value("content"_L1).toObject()));
        };
        // The preview and the notification's text: the spoiler's characters
        // veiled, its blanks kept; the bubble's own text is whole.
        const char *text = R"({"@type":"messageText","text":{"text":"It was the butler, sorry","entities":[
            {"@type":"textEntity","offset":11,"length":6,"type":{"@type":"textEntityTypeSpoiler"}},
            {"@type":"textEntity","offset":0,"length":2,"type":{"@type":"textEntityTypeBold"}}]}})";
        QCOMPARE(veiled(text), std::pair(u"It was the ▒▒▒▒▒▒, sorry"_s, u"It was the ▒▒▒▒▒▒, sorry"_s));
        QCOMPARE(messageText(json(text)), u"It was the butler, sorry"_s);
        QCOMPARE(veiled(R"({"@type":"messageText","text":{"text":"a b","entities":[
            {"offset":0,"length":3,"type":{"@type":"textEntityTypeSpoiler"}}]}})"),
                 std::pair(u"▒ ▒"_s, u"▒ ▒"_s));
        // A caption's spoiler: the preview names the photo, a notification veils it.
        QCOMPARE(veiled(R"({"@type":"messagePhoto","caption":{"text":"guess who","entities":[
            {"offset":6,"length":3,"type":{"@type":"textEntityTypeSpoiler"}}]}})"),
                 std::pair(u"Photo"_s, u"guess ▒▒▒"_s));
        // A spoiler past the end, before the start or of no length hides what it covers and nothing else.
        QCOMPARE(veiled(R"({"@type":"messageText","text":{"text":"secret","entities":[
            {"offset":3,"length":99,"type":{"@type":"textEntityTypeSpoiler"}},
            {"offset":-2,"length":4,"type":{"@type":"textEntityTypeSpoiler"}},
            {"offset":0,"length":0,"type":{"@type":"textEntityTypeSpoiler"}}]}})"),
                 std::pair(u"sec▒▒▒"_s, u"sec▒▒▒"_s));
    }

    void veilingKeepsCharactersWhole()
    {
        // "🍕" is two UTF-16 units: half of it in a spoiler veils all of it, as one.
        const QString pizza = u"a🍕b"_s;
        QCOMPARE(veiledText(pizza, {{1, 1, TextEntity::Type::Spoiler, {}}}), u"a▒b"_s);
        QCOMPARE(veiledText(pizza, {{2, 1, TextEntity::Type::Spoiler, {}}}), u"a▒b"_s);
        QCOMPARE(veiledText(pizza, {{0, 4, TextEntity::Type::Spoiler, {}}}), u"▒▒▒"_s);
        // Line breaks stay, other entities change nothing.
        QCOMPARE(veiledText(u"x\ny"_s, {{0, 3, TextEntity::Type::Spoiler, {}}}), u"▒\n▒"_s);
        QCOMPARE(veiledText(pizza, {{0, 4, TextEntity::Type::Bold, {}}}), pizza);
    }

    void initialsOfNames_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("expected");
        QTest::newRow("two words") << u"Grace Hopper"_s << u"GH"_s;
        QTest::newRow("three words, double space") << u"ada  lovelace byron"_s << u"AL"_s;
        QTest::newRow("one word") << u"alan"_s << u"A"_s;
        QTest::newRow("leading blanks") << u"  x"_s << u"X"_s;
        QTest::newRow("empty") << QString() << QString();
        QTest::newRow("letters beyond the basic plane") << u"𝔸da 𝔹yron"_s << u"𝔸𝔹"_s;
        QTest::newRow("non-Latin") << u"ёлка палка"_s << u"ЁП"_s;
    }
    void initialsOfNames()
    {
        QFETCH(QString, name);
        QFETCH(QString, expected);
        QCOMPARE(initials(name), expected);
    }

    void datesAcrossMidnight()
    {
        // Local time is fixed by the test's TZ: UTC+2 without daylight saving.
        const QDate today = QDateTime(QDate(2024, 3, 10), QTime(0, 30), QTimeZone(2 * 3600)).toLocalTime().date();
        const auto at = [](int day, int hour, int minute) {
            return QDateTime(QDate(2024, 3, day), QTime(hour, minute), QTimeZone(2 * 3600)).toSecsSinceEpoch();
        };
        QCOMPARE(timestampText(at(10, 0, 5), today), u"0:05"_s);
        QCOMPARE(timestampText(at(9, 23, 59), today), u"Yesterday"_s);
        QCOMPARE(timestampText(at(9, 0, 0), today), u"Yesterday"_s);
        QCOMPARE(timestampText(at(8, 23, 59), today), u"8 Mar"_s);
        QCOMPARE(timestampText(std::nullopt, today), QString());
        QCOMPARE(messageTime(at(9, 23, 59)), u"23:59"_s);
        QCOMPARE(messageTime(std::nullopt), QString());
    }

    // Run a second time by ctest with a zone that has daylight saving (see
    // CMakeLists.txt): conversions that remember the zone's offsets must still
    // change them at the transitions, in whichever order moments are asked for.
    void localTimesAcrossDaylightSaving()
    {
        if (qgetenv("TZ") != centralEurope)
            QSKIP("runs with TZ set to the Central European zone");
        const auto utc = [](int year, int month, int day, int hour, int minute, int second = 0) {
            return QDateTime(QDate(year, month, day), QTime(hour, minute, second), QTimeZone::utc()).toSecsSinceEpoch();
        };
        QCOMPARE(messageTime(utc(2024, 1, 15, 12, 0)), u"13:00"_s);
        QCOMPARE(messageTime(utc(2024, 7, 1, 12, 0)), u"14:00"_s);
        QCOMPARE(messageTime(utc(2024, 3, 31, 0, 59, 59)), u"1:59"_s);
        QCOMPARE(messageTime(utc(2024, 3, 31, 1, 0)), u"3:00"_s);
        QCOMPARE(messageTime(utc(2024, 10, 27, 0, 59, 59)), u"2:59"_s);
        QCOMPARE(messageTime(utc(2024, 10, 27, 1, 0)), u"2:00"_s);
        QCOMPARE(messageTime(utc(2024, 12, 31, 23, 30)), u"0:30"_s);
        QCOMPARE(messageTime(utc(2024, 6, 30, 22, 30)), u"0:30"_s);
        QCOMPARE(messageTime(utc(1999, 8, 1, 10, 15)), u"12:15"_s);
        QCOMPARE(messageTime(utc(2024, 3, 31, 0, 59, 59)), u"1:59"_s);
    }

    void files()
    {
        QVERIFY(isImageDocument(json(R"({"mime_type":"IMAGE/PNG"})")));
        QVERIFY(isImageDocument(json(R"({"mime_type":"application/octet-stream","file_name":"SCAN.JPG"})")));
        QVERIFY(isImageDocument(json(R"({"file_name":"x.heif"})")));
        QVERIFY(!isImageDocument(json(R"({"mime_type":"application/pdf","file_name":"jpg.pdf"})")));
        QCOMPARE(completedPath(json(R"({"local":{"path":"/a","is_downloading_completed":true}})")),
                 std::optional<QString>(u"/a"_s));
        QCOMPARE(completedPath(json(R"({"local":{"path":"/a","is_downloading_completed":false}})")),
                 std::optional<QString>());
        QCOMPARE(completedPath(json(R"({"local":{"path":"","is_downloading_completed":true}})")),
                 std::optional<QString>());
    }

    void stickerFormats()
    {
        QCOMPARE(stickerFormat(json(R"({"@type":"stickerFormatTgs"})")), StickerFormat::Animated);
        QCOMPARE(stickerFormat(json(R"({"@type":"stickerFormatWebm"})")), StickerFormat::Video);
        QCOMPARE(stickerFormat(json(R"({"@type":"stickerFormatWebp"})")), StickerFormat::Webp);
        QCOMPARE(stickerFormat(QJsonValue()), StickerFormat::Webp);
    }

    void reactions()
    {
        QVERIFY(messageReactions(json(R"({})")).isEmpty());
        // Reactions given directly as an array are not TDLib's shape.
        QVERIFY(messageReactions(
                    json(R"({"interaction_info":{"reactions":[{"type":{"@type":"reactionTypeEmoji","emoji":"👍"}}]}})"))
                    .isEmpty());
        const QList<MessageReaction> read = messageReactions(json(R"({"interaction_info":{"reactions":{"reactions":[
            {"type":{"@type":"reactionTypeEmoji","emoji":"❤"},"total_count":3,"is_chosen":true},
            {"type":{"@type":"reactionTypeCustomEmoji","custom_emoji_id":"1"},"total_count":9},
            {"type":{"@type":"reactionTypePaid"},"total_count":1},
            {"type":{"@type":"reactionTypeEmoji","emoji":"🔥"},"total_count":"2","is_chosen":1}]}}})"));
        QCOMPARE(read, (QList<MessageReaction>{{u"❤"_s, 3, true}, {u"🔥"_s, 0, false}}));
    }
};

int main(int argc, char *argv[])
{
    if (qgetenv("TZ") != centralEurope)
        qputenv("TZ", "UTC-2"); // POSIX notation: two hours east of UTC
    QCoreApplication application(argc, argv);
    TextsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_texts.moc"
