// What users type to reach people: phone numbers, usernames, and sticker queries
// that are searched as emoji; and messages made of emoji alone.

#include "session/ContactInput.h"
#include "session/Emoji.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ContactInputTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void phoneNumbers_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<std::optional<QString>>("expected");
        const auto none = std::optional<QString>();
        QTest::newRow("punctuation around 11 digits")
            << u" +44 (7700) 900-12.3 \n"_s << std::optional(u"+447700900123"_s);
        QTest::newRow("six digits") << u"+123456"_s << std::optional(u"+123456"_s);
        QTest::newRow("fifteen digits") << u"+123456789012345"_s << std::optional(u"+123456789012345"_s);
        QTest::newRow("no plus") << u"447700900123"_s << none;
        QTest::newRow("letter") << u"+44 7700 9OO123"_s << none;
        QTest::newRow("five digits") << u"+12345"_s << none;
        QTest::newRow("sixteen digits") << u"+1234567890123456"_s << none;
        QTest::newRow("zero after plus") << u"+0447700900123"_s << none;
        QTest::newRow("second plus") << u"+44+7700900123"_s << none;
        QTest::newRow("slash") << u"+44/7700900123"_s << none;
        QTest::newRow("full-width digits") << u"+４４７７００９００１２３"_s << none;
        QTest::newRow("empty") << QString() << none;
    }
    void phoneNumbers()
    {
        QFETCH(QString, typed);
        QFETCH(std::optional<QString>, expected);
        QCOMPARE(normalizedContactPhone(typed), expected);
    }

    void usernames_data()
    {
        QTest::addColumn<QString>("typed");
        QTest::addColumn<std::optional<QString>>("expected");
        const auto none = std::optional<QString>();
        QTest::newRow("at sign dropped") << u" @grace_h0pper "_s << std::optional(u"grace_h0pper"_s);
        QTest::newRow("thirty-two letters") << QString(32, u'a') << std::optional(QString(32, u'a'));
        QTest::newRow("thirty-three letters") << QString(33, u'a') << none;
        QTest::newRow("hyphen") << u"grace-hopper"_s << none;
        QTest::newRow("dot") << u"grace.hopper"_s << none;
        QTest::newRow("two at signs") << u"@@grace"_s << none;
        QTest::newRow("only an at sign") << u"@"_s << none;
        QTest::newRow("non-ASCII letter") << u"grâce"_s << none;
    }
    void usernames()
    {
        QFETCH(QString, typed);
        QFETCH(std::optional<QString>, expected);
        QCOMPARE(cleanedUsername(typed), expected);
    }

    void emojiQueries()
    {
        QVERIFY(containsEmoji(u"❤️"_s));
        QVERIFY(containsEmoji(u"cat 🐱"_s));
        QVERIFY(containsEmoji(u"cat7"_s)); // digits have the Emoji property
        QVERIFY(containsEmoji(u"#"_s));
        QVERIFY(!containsEmoji(u"cat"_s));
        QVERIFY(!containsEmoji(u"кот"_s));
        QVERIFY(!containsEmoji(QString()));
    }

    void emojiOnlyTexts_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("count");
        QTest::newRow("one") << u"😀"_s << 1;
        QTest::newRow("three with spaces") << u" 😀 🐱🎉 "_s << 3;
        QTest::newRow("family joined") << u"👩‍👩‍👧‍👦"_s << 1;
        QTest::newRow("heart on fire") << u"❤️‍🔥"_s << 1;
        QTest::newRow("couple with skin tones") << u"🧑🏻‍❤️‍🧑🏿"_s << 1;
        QTest::newRow("flags") << u"🇫🇷🇯🇵"_s << 2;
        QTest::newRow("skin tone") << u"👍🏽"_s << 1;
        QTest::newRow("heart with the selector") << u"❤️"_s << 1;
        QTest::newRow("keycap") << u"1️⃣"_s << 1;
        QTest::newRow("four") << u"😀😀😀😀"_s << 4;
        QTest::newRow("heart without the selector") << u"❤"_s << 0;
        QTest::newRow("digits") << u"123"_s << 0;
        QTest::newRow("copyright sign") << u"©"_s << 0;
        QTest::newRow("with a word") << u"😀 ok"_s << 0;
        QTest::newRow("a lone regional indicator") << u"🇫"_s << 0;
        QTest::newRow("a lone skin tone and text") << u"a🏽"_s << 0;
        QTest::newRow("spaces") << u"  "_s << 0;
        QTest::newRow("empty") << QString() << 0;
    }
    void emojiOnlyTexts()
    {
        QFETCH(QString, text);
        QFETCH(int, count);
        QCOMPARE(emojiOnlyCount(text), count);
    }

    void emojiFontTextKeepsSequencesWhole()
    {
        QCOMPARE(emojiFontText(u"❤️‍🔥 ok ❤️"_s), u"❤‍🔥 ok ❤"_s);
        QCOMPARE(emojiFontText(u"🇫🇷👍🏽"_s), u"🇫🇷👍🏽"_s);
    }
};

QTEST_GUILESS_MAIN(ContactInputTest)
#include "tst_contactinput.moc"
