// The display record read from stored TDLib messages: each content kind, replies,
// forwards and edits, and input that is not what TDLib sends.

#include "session/MessageDetails.h"

#include <QJsonDocument>
#include <QTest>

using namespace Qt::StringLiterals;
using Kind = MessageContent::Kind;

namespace {

TdObject json(const char *text)
{
    QJsonParseError error;
    const TdObject object = QJsonDocument::fromJson(text, &error).object();
    if (error.error != QJsonParseError::NoError)
        qFatal("bad test JSON: %s", qPrintable(error.errorString()));
    return object;
}

MessageDetails read(const char *content, const MessageDetailsContext &context = {})
{
    return messageDetails(json(content), context);
}

} // namespace

class MessageDetailsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mediaKindsCarryTheirFiles()
    {
        // The largest photo size is the one shown; the caption is the text line.
        const MessageDetails photo = read(R"({"id":5,"date":1760000000,"content":{"@type":"messagePhoto",
            "caption":{"text":"Lake"},"photo":{"minithumbnail":{"data":"AAEC"},"sizes":[
              {"type":"s","width":90,"height":60,"photo":{"id":1,"size":900}},
              {"type":"y","width":1280,"height":960,"photo":{"id":2,"size":0,"expected_size":90000}}]}}})");
        QCOMPARE(photo.kind, Kind::Photo);
        QCOMPARE(photo.messageID, u"5"_s);
        QCOMPARE(photo.date, QDateTime::fromSecsSinceEpoch(1760000000));
        QCOMPARE(photo.text, u"Lake"_s);
        QCOMPARE(photo.fileID, 2);
        QCOMPARE(photo.fileSize, 90000);
        QCOMPARE(photo.width, 1280);
        QCOMPARE(photo.minithumbnail, QByteArray("\x00\x01\x02", 3));

        const MessageDetails video = read(R"({"content":{"@type":"messageVideo","caption":{"text":""},
            "video":{"duration":12,"width":320,"height":240,"file_name":"clip.mp4","mime_type":"video/mp4",
                     "video":{"id":9,"size":4000}}}})");
        QCOMPARE(video.kind, Kind::Video);
        QCOMPARE(video.duration, 12);
        QCOMPARE(video.text, QString());
        QCOMPARE(video.fileID, 9);

        const MessageDetails audio = read(R"({"content":{"@type":"messageAudio","caption":{"text":""},
            "audio":{"duration":185,"title":"Tune","performer":"Band","file_name":"t.mp3","mime_type":"audio/mpeg",
                     "audio":{"id":3,"size":64000}}}})");
        QCOMPARE(audio.kind, Kind::Audio);
        QCOMPARE(audio.title, u"Tune"_s);
        QCOMPARE(audio.performer, u"Band"_s);
        QCOMPARE(audio.duration, 185);

        const MessageDetails voice = read(R"({"content":{"@type":"messageVoiceNote","caption":{"text":""},
            "voice_note":{"duration":7,"mime_type":"audio/ogg","voice":{"id":4,"size":6000}}}})");
        QCOMPARE(voice.kind, Kind::VoiceNote);
        QCOMPARE(voice.duration, 7);

        // A document keeps its name and type; a picture sent as a file shows as a photo.
        const MessageDetails pdf = read(R"({"content":{"@type":"messageDocument","caption":{"text":""},
            "document":{"file_name":"report.pdf","mime_type":"application/pdf","document":{"id":6,"size":1200000}}}})");
        QCOMPARE(pdf.kind, Kind::Document);
        QCOMPARE(pdf.fileName, u"report.pdf"_s);
        QCOMPARE(pdf.mimeType, u"application/pdf"_s);
        QCOMPARE(pdf.fileSize, 1200000);
        const MessageDetails scan = read(R"({"content":{"@type":"messageDocument","caption":{"text":""},
            "document":{"file_name":"scan.png","mime_type":"image/png","document":{"id":7,"size":1200}}}})");
        QCOMPARE(scan.kind, Kind::Photo);
    }

    void cardsCarryWhatTheyHold()
    {
        const MessageDetails venue = read(R"({"content":{"@type":"messageVenue","venue":{
            "location":{"latitude":51.5,"longitude":-0.12},"title":"Big Ben","address":"London"}}})");
        QCOMPARE(venue.kind, Kind::Venue);
        QCOMPARE(venue.placeName, u"Big Ben"_s);
        QCOMPARE(venue.longitude, -0.12);

        const MessageDetails contact = read(R"({"content":{"@type":"messageContact","contact":{
            "phone_number":"15550123","first_name":"Chloe","last_name":"Hall","vcard":"","user_id":200000115}}})");
        QCOMPARE(contact.contactName, u"Chloe Hall"_s);
        QCOMPARE(contact.contactPhone, u"15550123"_s);
        QCOMPARE(contact.contactUserID, 200000115);

        const MessageDetails poll = read(R"({"content":{"@type":"messagePoll","poll":{"id":"1",
            "question":{"text":"Pizza?"},"total_voter_count":4,"is_closed":true,"is_anonymous":true,
            "type":{"@type":"pollTypeQuiz","correct_option_id":0},"options":[
              {"text":{"text":"Yes"},"voter_count":3,"vote_percentage":75,"is_chosen":true},
              {"text":{"text":"No"},"voter_count":1,"vote_percentage":250}]}}})");
        QCOMPARE(poll.pollQuestion, u"Pizza?"_s);
        QVERIFY(poll.pollIsClosed && poll.pollIsQuiz);
        QCOMPARE(poll.pollChoices.size(), 2);
        QCOMPARE(poll.pollChoices.at(0), (PollChoice{u"Yes"_s, 3, 75, true}));
        QCOMPARE(poll.pollChoices.at(1).percentage, 100); // a percentage past 100 is capped

        const MessageDetails missed = read(R"({"content":{"@type":"messageCall","is_video":true,"duration":0,
            "discard_reason":{"@type":"callDiscardReasonMissed"}}})");
        QCOMPARE(missed.callEnd, MessageContent::CallEnd::Missed);
        QVERIFY(missed.callIsVideo);

        const MessageDetails dice = read(R"({"content":{"@type":"messageDice","emoji":"🎯","value":6}})");
        QCOMPARE(dice.diceEmoji, u"🎯"_s);
        QCOMPARE(dice.diceValue, 6);
    }

    void repliesForwardsAndEdits()
    {
        const TdObject question = json(R"({"id":10,"is_outgoing":false,"sender_id":{"@type":"messageSenderUser","user_id":7},
            "content":{"@type":"messageText","text":{"text":"Tonight?"}}})");
        MessageDetailsContext context;
        context.userName = [](qint64 id) { return id == 7 ? u"Emma Wilson"_s : QString(); };
        context.chatTitle = [](qint64 id) { return id == -100 ? u"News"_s : QString(); };
        context.storedMessage = [&question](qint64 id) { return id == 10 ? &question : nullptr; };

        const MessageDetails answer = read(R"({"id":11,"edit_date":1760000100,
            "reply_to":{"@type":"messageReplyToMessage","chat_id":1,"message_id":10},
            "content":{"@type":"messageText","text":{"text":"Yes"}}})", context);
        QCOMPARE(answer.replyToMessageID, u"10"_s);
        QCOMPARE(answer.replyToSender, u"Emma Wilson"_s);
        QCOMPARE(answer.replyToText, u"Tonight?"_s);
        QVERIFY(answer.isEdited);

        // A reply to a message not loaded names what TDLib tells of it.
        const MessageDetails distant = read(R"({"reply_to":{"@type":"messageReplyToMessage","message_id":99,
            "origin":{"@type":"messageOriginHiddenUser","sender_name":"Someone"},
            "content":{"@type":"messageText","text":{"text":"Old news"}}}})", context);
        QCOMPARE(distant.replyToSender, u"Someone"_s);
        QCOMPARE(distant.replyToText, u"Old news"_s);
        QVERIFY(!distant.replyToMissing);

        // One TDLib said is gone is known as such; one still asked for is not yet.
        context.missingMessage = [](qint64 id) { return id == 12; };
        const MessageDetails gone =
            read(R"({"reply_to":{"@type":"messageReplyToMessage","chat_id":1,"message_id":12}})", context);
        QVERIFY(gone.replyToMissing);
        QVERIFY(gone.replyToText.isEmpty());
        const MessageDetails pending =
            read(R"({"reply_to":{"@type":"messageReplyToMessage","chat_id":1,"message_id":13}})", context);
        QVERIFY(!pending.replyToMissing);

        const MessageDetails forwarded = read(R"({"forward_info":{"@type":"messageForwardInfo","date":1,
            "origin":{"@type":"messageOriginChannel","chat_id":-100,"message_id":1,"author_signature":"Ann"}}})",
                                              context);
        QCOMPARE(forwarded.forwardedFrom, u"News (Ann)"_s);
        QVERIFY(forwarded.isForwarded);
        QVERIFY(!answer.isForwarded);
        QVERIFY(!forwarded.isEdited);
        QVERIFY(forwarded.replyToMessageID.isEmpty());
    }

    void inputThatIsNotTdLibsGivesAnEmptyRecord()
    {
        // Wrong types, missing fields, negative and huge numbers: a record, no crash.
        const MessageDetails wrong = read(R"({"id":"x","date":-5,"content":{"@type":"messagePhoto","photo":{"sizes":"no"}},
            "reply_to":{"@type":"messageReplyToMessage","message_id":0},"forward_info":[]})");
        QCOMPARE(wrong.kind, Kind::Photo);
        QVERIFY(!wrong.date.isValid());
        QCOMPARE(wrong.fileID, 0);
        QVERIFY(wrong.replyToMessageID.isEmpty());
        QVERIFY(wrong.forwardedFrom.isEmpty());

        const MessageDetails huge = read(R"({"content":{"@type":"messageVideo","video":{"duration":1e300,"width":-4}}})");
        QCOMPARE(huge.duration, 0); // not an integer TDLib could send: unknown
        QCOMPARE(huge.width, 0);

        const MessageDetails unknown = read(R"({"content":{"@type":"messageGiveaway"}})");
        QCOMPARE(unknown.kind, Kind::Other);
        QCOMPARE(read("{}").kind, Kind::Other);
    }
};

QTEST_GUILESS_MAIN(MessageDetailsTest)
#include "tst_messagedetails.moc"
