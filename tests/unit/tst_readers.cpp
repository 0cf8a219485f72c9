// Pure readers: identifiers, TDLib's 64-bit values, stored messages, the credentials and the sound table.

#include "session/CredentialStore.h"
#include "session/SoundManager.h"
#include "session/StoredMessage.h"
#include "session/UserDefaults.h"
#include "tdlib/TdJson.h"

#include <QJsonDocument>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class RecordingPlayer : public SoundPlayer
{
public:
    void play(const QString &name) override { played.append(name); }
    QStringList played;
};

class ReadersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path()); }

    void strictIdentifiers_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<std::optional<qint64>>("expected");
        QTest::newRow("plain") << u"42"_s << std::optional<qint64>(42);
        QTest::newRow("plus sign") << u"+42"_s << std::optional<qint64>(42);
        QTest::newRow("group chat") << u"-1001234567890"_s << std::optional<qint64>(-1001234567890);
        QTest::newRow("largest") << u"9223372036854775807"_s << std::optional<qint64>(INT64_MAX);
        QTest::newRow("smallest") << u"-9223372036854775808"_s << std::optional<qint64>(INT64_MIN);
        QTest::newRow("one past largest") << u"9223372036854775808"_s << std::optional<qint64>();
        QTest::newRow("twenty nines") << u"99999999999999999999"_s << std::optional<qint64>();
        QTest::newRow("empty") << QString() << std::optional<qint64>();
        QTest::newRow("lone sign") << u"-"_s << std::optional<qint64>();
        QTest::newRow("two signs") << u"+-1"_s << std::optional<qint64>();
        QTest::newRow("blank") << u" 1"_s << std::optional<qint64>();
        QTest::newRow("letter") << u"12a"_s << std::optional<qint64>();
        QTest::newRow("hexadecimal") << u"0x10"_s << std::optional<qint64>();
        QTest::newRow("underscore") << u"1_000"_s << std::optional<qint64>();
        QTest::newRow("arabic-indic digit") << u"١"_s << std::optional<qint64>();
    }
    void strictIdentifiers()
    {
        QFETCH(QString, text);
        QFETCH(std::optional<qint64>, expected);
        QCOMPARE(parseInt64(text), expected);
    }

    void tdlibValues()
    {
        // TDLib writes 64-bit values as strings and 32-bit ones as numbers.
        const QJsonObject object =
            QJsonDocument::fromJson(
                R"({"order":"9221294784512000005","id":123,"big":9007199254740993,"fraction":1.5,"flag":true,"text":"x"})")
                .object();
        QCOMPARE(int64From(object.value("order"_L1)), std::optional<qint64>(9221294784512000005LL));
        QCOMPARE(int64From(object.value("id"_L1)), std::optional<qint64>(123));
        QCOMPARE(int64From(object.value("big"_L1)), std::optional<qint64>(9007199254740993LL));
        QCOMPARE(int64From(object.value("fraction"_L1)), std::optional<qint64>());
        QCOMPARE(int64From(object.value("flag"_L1)), std::optional<qint64>());
        QCOMPARE(int64From(object.value("text"_L1)), std::optional<qint64>());
        QCOMPARE(int64From(object.value("missing"_L1)), std::optional<qint64>());
        QCOMPARE(int64From(QJsonValue(0)), std::optional<qint64>(0));
        QCOMPARE(integerFrom(QJsonValue(u"5"_s)), std::optional<qint64>());
    }

    void storedMessages()
    {
        // What comes back is what TDLib sent: 64-bit values in both spellings,
        // fractions, escapes, text beyond the BMP, nulls, empty containers.
        const QByteArray sent = R"({"@type":"message","id":"9221294784512000005","chat_id":-1001234567890,)"
                                R"("date":1700000000,"big":9007199254740993,"ratio":0.1,"tiny":1e-300,)"
                                R"("content":{"@type":"messageText","text":{"text":"\"quoted\" \\ tab\t nul\u0000 )"
                                R"(Ünïcödé 🍕 \ud83d\ude00","entities":[]}},"reply_to":null,"reactions":{},"ids":[1,-2,"3"]})";
        QJsonParseError error;
        const TdObject original = QJsonDocument::fromJson(sent, &error).object();
        QCOMPARE(error.error, QJsonParseError::NoError);
        StoredMessage stored(original);
        QCOMPARE(stored.object(), original);
        QCOMPARE(stored.id(), std::optional<qint64>(9221294784512000005LL));
        QCOMPARE(stored.date(), 1700000000);
        QCOMPARE(int64From(stored.object().value("big"_L1)), std::optional<qint64>(9007199254740993LL));

        stored.setField(u"edit_date"_s, 1700000100);
        QCOMPARE(stored.object().value("edit_date"_L1).toInteger(), 1700000100);
        stored.setField(u"reply_to"_s, QJsonValue::Null);
        stored.setField(u"ratio"_s, QJsonValue::Undefined);
        QVERIFY(!stored.object().contains("reply_to"_L1));
        QVERIFY(!stored.object().contains("ratio"_L1));
        QCOMPARE(stored.id(), std::optional<qint64>(9221294784512000005LL)); // kept across changes

        // Identifiers that are not 64-bit values are none; a missing date is 0.
        QCOMPARE(StoredMessage(TdObject{{"id"_L1, u"12a"_s}}).id(), std::optional<qint64>());
        QCOMPARE(StoredMessage(TdObject{{"id"_L1, 1.5}}).id(), std::optional<qint64>());
        QCOMPARE(StoredMessage(TdObject{{"id"_L1, 7}}).date(), 0);
        QCOMPARE(StoredMessage(TdObject{}).object(), TdObject{});

        // Oldest first; within one second, by identifier.
        const StoredMessage early(TdObject{{"id"_L1, 9}, {"date"_L1, 100}});
        const StoredMessage late(TdObject{{"id"_L1, 2}, {"date"_L1, 101}});
        const StoredMessage lateHigherID(TdObject{{"id"_L1, u"3"_s}, {"date"_L1, 101}});
        QVERIFY(StoredMessage::sortsBefore(early, late));
        QVERIFY(!StoredMessage::sortsBefore(late, early));
        QVERIFY(StoredMessage::sortsBefore(late, lateHigherID));
        QVERIFY(!StoredMessage::sortsBefore(late, late));
    }

    void credentials()
    {
        const CredentialStore padded({{u"TelegramAPIID"_s, u"  12345\n"_s}, {u"TelegramAPIHash"_s, u" abc \n"_s}});
        QCOMPARE(padded.apiID(), std::optional<qint64>(12345));
        QCOMPARE(padded.apiHash(), std::optional<QString>(u"abc"_s));
        QVERIFY(padded.hasCredentials());

        const CredentialStore bad({{u"TelegramAPIID"_s, u"12a"_s}, {u"TelegramAPIHash"_s, u"   "_s}});
        QCOMPARE(bad.apiID(), std::optional<qint64>());
        QCOMPARE(bad.apiHash(), std::optional<QString>());
        QVERIFY(!bad.hasCredentials());

        // Values must be text; an empty build has empty strings.
        const CredentialStore numbers({{u"TelegramAPIID"_s, 12345}, {u"TelegramAPIHash"_s, 7}});
        QVERIFY(!numbers.apiID() && !numbers.apiHash());
        const CredentialStore empty({{u"TelegramAPIID"_s, u""_s}, {u"TelegramAPIHash"_s, u""_s}});
        QVERIFY(!empty.hasCredentials());
        QVERIFY(!CredentialStore(QVariantMap()).hasCredentials());
    }

    void soundTable()
    {
        QCOMPARE(soundName(SoundPack::Crystal, SoundEvent::IncomingMessage), u"Glass"_s);
        QCOMPARE(soundName(SoundPack::Gentle, SoundEvent::Failure), u"Funk"_s);
        QCOMPARE(soundName(SoundPack::Classic, SoundEvent::Preview2), u"Submarine"_s);
        QCOMPARE(soundName(SoundPack::Playful, SoundEvent::SignedIn), u"Ping"_s);
        QCOMPARE(soundPackFromRawValue(u"gentle"_s), std::optional(SoundPack::Gentle));
        QCOMPARE(soundPackFromRawValue(u"Gentle"_s), std::optional<SoundPack>());
    }

    void soundPreferences()
    {
        RecordingPlayer player;
        SoundManager manager;
        manager.setPlayer(&player);

        manager.play(SoundEvent::IncomingMessage);
        UserDefaults::setValue(u"soundPack"_s, u"playful"_s);
        manager.play(SoundEvent::IncomingMessage);
        UserDefaults::setValue(u"soundPack"_s, u"loud"_s);
        manager.play(SoundEvent::Failure);
        QCOMPARE(player.played, QStringList({u"Glass"_s, u"Funk"_s, u"Basso"_s}));

        player.played.clear();
        UserDefaults::setValue(u"soundsEnabled"_s, false);
        manager.play(SoundEvent::IncomingMessage);
        QVERIFY(player.played.isEmpty());
        manager.play(SoundEvent::Failure, SoundPack::Playful); // previews always sound
        QCOMPARE(player.played, QStringList({u"Frog"_s}));

        // The settings file gives booleans back as text in a later run.
        UserDefaults::setValue(u"soundsEnabled"_s, u"false"_s);
        QVERIFY(!manager.isEnabled());
        UserDefaults::setValue(u"soundsEnabled"_s, u"off"_s); // not a boolean: enabled
        QVERIFY(manager.isEnabled());
    }

private:
    QTemporaryDir m_settings;
};

QTEST_GUILESS_MAIN(ReadersTest)
#include "tst_readers.moc"
