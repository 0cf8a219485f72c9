// The demo library's answers, driven directly through TDLib's JSON entry points.
#include <QImage>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QtTest>

#include <dlfcn.h>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

using Predicate = std::function<bool(const QJsonObject &)>;

Predicate ofType(const QString &type)
{
    return [type](const QJsonObject &object) { return object.value("@type"_L1).toString() == type; };
}

} // namespace

class DemoLibraryTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_data.isValid());
        const QByteArray path = VOST_DEMO_BUNDLE "/lib/vost/libtdjson.so";
        m_handle = dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
        QVERIFY2(m_handle, dlerror());
        m_create = reinterpret_cast<int (*)()>(dlsym(m_handle, "td_create_client_id"));
        m_send = reinterpret_cast<void (*)(int, const char *)>(dlsym(m_handle, "td_send"));
        m_receive = reinterpret_cast<const char *(*)(double)>(dlsym(m_handle, "td_receive"));
        QVERIFY(m_create && m_send && m_receive);
        QVERIFY(!dlsym(m_handle, "_ZN4demo7Runtime8instanceEv"));
    }

    void startsLikeTDLib()
    {
        m_client = m_create();
        QCOMPARE(next().value("@type"_L1).toString(), u"updateOption"_s);
        const QJsonObject state = next();
        QCOMPARE(state.value("authorization_state"_L1)["@type"_L1].toString(),
                 u"authorizationStateWaitTdlibParameters"_s);
        const QJsonObject version = request(R"({"@type":"getOption","name":"version","@extra":{"purpose":"v"}})");
        QCOMPARE(version.value("value"_L1).toString(), u"1.8.67"_s);
        QCOMPARE(version.value("@extra"_L1)["purpose"_L1].toString(), u"v"_s);
        request(QJsonObject{{u"@type"_s, u"setTdlibParameters"_s},
                            {u"database_directory"_s, m_data.path()},
                            {u"files_directory"_s, m_data.path() + u"/Files"_s}});
        request(R"({"@type":"setAuthenticationPhoneNumber","phone_number":"+1 (555) 010-0"})");
        QCOMPARE(request(R"({"@type":"checkAuthenticationCode","code":"11111"})")["message"_L1].toString(),
                 u"PHONE_CODE_INVALID"_s);
        QCOMPARE(request(R"({"@type":"checkAuthenticationCode","code":"22222"})")["@type"_L1].toString(), u"ok"_s);
        waitFor([](const QJsonObject &o) {
            return o.value("authorization_state"_L1)["@type"_L1].toString() == "authorizationStateReady"_L1;
        });
    }

    void pagesTheChatList()
    {
        int pages = 0;
        QJsonObject answer;
        while ((answer = request(R"({"@type":"loadChats","chat_list":{"@type":"chatListMain"},"limit":10})"))
                   .value("@type"_L1) == "ok"_L1)
            ++pages;
        QCOMPARE(answer.value("code"_L1).toInt(), 404);
        QCOMPARE(pages, 2);
        int newChats = 0;
        QString firstTitle;
        for (const QJsonObject &update : m_updates)
            if (update.value("@type"_L1) == "updateNewChat"_L1) {
                if (!newChats++)
                    firstTitle = update["chat"_L1]["title"_L1].toString();
                const QJsonObject position = update["chat"_L1]["positions"_L1][0].toObject();
                QVERIFY(position.value("order"_L1).isString());
            }
        QCOMPARE(newChats, 20);
        QCOMPARE(firstTitle, u"Vost Helper"_s);
    }

    void readsHistoryLikeTDLib()
    {
        const QString emma = u"200000101"_s;
        const QJsonArray first = history(emma, 0, 0, 15);
        QCOMPARE(first.size(), 1);
        const qint64 newest = first[0]["id"_L1].toInteger();
        const QJsonArray page = history(emma, newest, 0, 15);
        QCOMPARE(page.size(), 15);
        QCOMPARE(page[0]["id"_L1].toInteger(), newest);
        QVERIFY(page[1]["id"_L1].toInteger() < newest);
        const qint64 middle = page[5]["id"_L1].toInteger();
        const QJsonArray around = history(emma, middle, -2, 5);
        QCOMPARE(around.size(), 5);
        QCOMPARE(around[2]["id"_L1].toInteger(), middle);
        // A photo among the newest fifty, for the download case.
        const QJsonArray recent = history(emma, newest, 0, 50);
        m_photoFile = 0;
        for (const QJsonValue &message : recent)
            if (message["content"_L1]["@type"_L1] == "messagePhoto"_L1)
                m_photoFile = message["content"_L1]["photo"_L1]["sizes"_L1][0]["photo"_L1]["id"_L1].toInt();
        QVERIFY(m_photoFile > 0);
    }

    void downloadsAFile()
    {
        const QJsonObject started =
            request(u"{\"@type\":\"downloadFile\",\"file_id\":%1,\"priority\":1,\"offset\":0,\"limit\":0,"
                    "\"synchronous\":false}"_s.arg(m_photoFile)
                        .toUtf8());
        QCOMPARE(started["id"_L1].toInt(), m_photoFile);
        const QJsonObject done = waitFor([this](const QJsonObject &o) {
            return o["@type"_L1] == "updateFile"_L1 && o["file"_L1]["id"_L1].toInt() == m_photoFile &&
                   o["file"_L1]["local"_L1]["is_downloading_completed"_L1].toBool();
        });
        const QString path = done["file"_L1]["local"_L1]["path"_L1].toString();
        QVERIFY(path.startsWith(m_data.path() + u"/Files/photos/"_s));
        QVERIFY(QImage(path).width() > 0);
    }

    void sendsToTheBotAndGetsAnAnswer()
    {
        const QJsonObject pending = request(R"({"@type":"sendMessage","chat_id":5000000001,)"
                                            R"("input_message_content":{"@type":"inputMessageText",)"
                                            R"("text":{"@type":"formattedText","text":"hello","entities":[]}}})");
        QVERIFY(pending["sending_state"_L1].isObject());
        const QJsonObject sent = waitFor(ofType(u"updateMessageSendSucceeded"_s));
        QCOMPARE(sent["old_message_id"_L1].toInteger(), pending["id"_L1].toInteger());
        const qint64 sentID = sent["message"_L1]["id"_L1].toInteger();
        QCOMPARE(waitFor(ofType(u"updateChatReadOutbox"_s))["last_read_outbox_message_id"_L1].toInteger(), sentID);
        QCOMPARE(waitFor(ofType(u"updateChatAction"_s))["action"_L1]["@type"_L1].toString(), u"chatActionTyping"_s);
        const QJsonObject reply = waitFor(ofType(u"updateNewMessage"_s));
        QVERIFY(reply["message"_L1]["content"_L1]["text"_L1]["text"_L1].toString().contains(u"hello"_s));
    }

    void answersAnAlbumOnce()
    {
        QImage picture(16, 16, QImage::Format_RGB32);
        picture.fill(Qt::blue);
        const QString path = m_data.filePath(u"blue.png"_s);
        QVERIFY(picture.save(path));
        const QJsonObject photo{
            {u"@type"_s, u"inputMessagePhoto"_s},
            {u"photo"_s, QJsonObject{{u"@type"_s, u"inputPhoto"_s},
                                     {u"photo"_s, QJsonObject{{u"@type"_s, u"inputFileLocal"_s}, {u"path"_s, path}}}}},
            {u"caption"_s, QJsonObject{{u"@type"_s, u"formattedText"_s}, {u"text"_s, u""_s}}}};
        request(QJsonObject{{u"@type"_s, u"sendMessageAlbum"_s},
                            {u"chat_id"_s, 5000000001LL},
                            {u"input_message_contents"_s, QJsonArray{photo, photo, photo}}});
        // A text after the album: its answer comes after whatever the album gets.
        request(R"({"@type":"sendMessage","chat_id":5000000001,)"
                R"("input_message_content":{"@type":"inputMessageText",)"
                R"("text":{"@type":"formattedText","text":"after the album","entities":[]}}})");
        QStringList answers;
        const auto fromBot = [](const QJsonObject &o) {
            return o["@type"_L1] == "updateNewMessage"_L1 && !o["message"_L1]["is_outgoing"_L1].toBool() &&
                   o["message"_L1]["chat_id"_L1].toInteger() == 5000000001LL;
        };
        while (true) {
            const QJsonObject answer = waitFor(fromBot);
            const QString text = answer["message"_L1]["content"_L1]["text"_L1]["text"_L1].toString();
            if (text.contains(u"after the album"_s))
                break;
            answers.append(text);
        }
        QCOMPARE(answers, QStringList{u"Nice photo! 📸"_s});
    }

    void closes()
    {
        request(R"({"@type":"close"})");
        waitFor([](const QJsonObject &o) {
            return o.value("authorization_state"_L1)["@type"_L1].toString() == "authorizationStateClosed"_L1;
        });
    }

private:
    QJsonObject next(double timeout = 5.0)
    {
        const char *text = m_receive(timeout);
        return text ? QJsonDocument::fromJson(text).object() : QJsonObject();
    }

    QJsonObject waitFor(const Predicate &predicate)
    {
        QDeadlineTimer deadline(5000);
        while (!deadline.hasExpired()) {
            const QJsonObject object = next(0.5);
            if (object.isEmpty())
                continue;
            if (predicate(object))
                return object;
            m_updates.append(object);
        }
        [] { QFAIL("timed out waiting for the library"); }();
        return {};
    }

    QJsonObject request(QJsonObject object)
    {
        const int id = ++m_lastRequest;
        QJsonObject extra = object.value("@extra"_L1).toObject();
        extra.insert(u"request"_s, id);
        object.insert(u"@extra"_s, extra);
        m_send(m_client, QJsonDocument(object).toJson(QJsonDocument::Compact).constData());
        return waitFor([id](const QJsonObject &o) { return o["@extra"_L1]["request"_L1].toInt() == id; });
    }

    QJsonObject request(const QByteArray &json) { return request(QJsonDocument::fromJson(json).object()); }

    // A page of a chat's history, as getChatHistory answers it.
    QJsonArray history(const QString &chatID, qint64 fromMessageID, int offset, int limit)
    {
        return request(QJsonObject{{u"@type"_s, u"getChatHistory"_s},
                                   {u"chat_id"_s, chatID.toLongLong()},
                                   {u"from_message_id"_s, fromMessageID},
                                   {u"offset"_s, offset},
                                   {u"limit"_s, limit}})["messages"_L1]
            .toArray();
    }

    QTemporaryDir m_data;
    void *m_handle = nullptr;
    int (*m_create)() = nullptr;
    void (*m_send)(int, const char *) = nullptr;
    const char *(*m_receive)(double) = nullptr;
    int m_client = 0;
    int m_lastRequest = 0;
    int m_photoFile = 0;
    QList<QJsonObject> m_updates;
};

QTEST_GUILESS_MAIN(DemoLibraryTest)
#include "tst_demolibrary.moc"
