// The request channel and the receive loop, against a fake TDLib library that
// records requests and delivers events the test pushes.

#include "session/TelegramSession.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTest>
#include <QThread>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

struct FakeTDLib {
    void (*push)(const char *) = nullptr;
    int (*sentCount)() = nullptr;
    const char *(*sentAt)(int) = nullptr;
    void (*reset)() = nullptr;
    int (*pendingCount)() = nullptr;

    QList<QByteArray> sent() const
    {
        QList<QByteArray> requests;
        for (int i = 0; i < sentCount(); ++i)
            requests.append(sentAt(i));
        return requests;
    }
    QStringList sentTypes() const
    {
        QStringList types;
        for (const QByteArray &request : sent())
            types.append(QJsonDocument::fromJson(request).object().value("@type"_L1).toString());
        return types;
    }
    void pushAuthorizationState(const QByteArray &state) const
    {
        push(R"({"@type":"updateAuthorizationState","authorization_state":{"@type":")" + state + R"("}})");
    }
};

const QByteArray versionRequest = R"({"@type":"getOption","name":"version"})";

} // namespace

// The session with its channel's send in reach.
class SessionWithChannel : public TelegramSession
{
public:
    using TelegramSession::send;
};

class ChannelTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // The same library the sessions load, so the test reads the same records.
        const QByteArray path = QStringLiteral(VOST_FAKE_BUNDLE "/lib/vost/libtdjson.so").toLocal8Bit();
        void *handle = dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
        QVERIFY(handle);
        m_fake.push = reinterpret_cast<decltype(m_fake.push)>(dlsym(handle, "fake_push_event"));
        m_fake.sentCount = reinterpret_cast<decltype(m_fake.sentCount)>(dlsym(handle, "fake_sent_count"));
        m_fake.sentAt = reinterpret_cast<decltype(m_fake.sentAt)>(dlsym(handle, "fake_sent_at"));
        m_fake.reset = reinterpret_cast<decltype(m_fake.reset)>(dlsym(handle, "fake_reset"));
        m_fake.pendingCount = reinterpret_cast<decltype(m_fake.pendingCount)>(dlsym(handle, "fake_pending_count"));
        QVERIFY(m_fake.push && m_fake.sentCount && m_fake.sentAt && m_fake.reset && m_fake.pendingCount);
    }

    void init() { m_fake.reset(); }

    void requestsBeforeStartAreDropped()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.submitPhoneNumber(u"+441234"_s);
        session.requestChats();
        QCOMPARE(m_fake.sentCount(), 0);
    }

    void startCreatesOneClientAndAsksForTheVersion()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        session.start(1, u"hash"_s);
        QCOMPARE(m_fake.sent(), QList<QByteArray>{versionRequest});
        QCOMPARE(session.step(), Step::starting());
        QCOMPARE(session.startupStatus(), u"Client created; waiting for TDLib’s first event…"_s);
    }

    void requestSenderSeesRequestsButNotTheVersionQuery()
    {
        QStringList types;
        TelegramSession session([&types](const QString &type, const TdObject &fields) {
            QVERIFY(!fields.contains("@type"_L1));
            types.append(type);
        });
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        m_fake.pushAuthorizationState("authorizationStateWaitTdlibParameters");
        QTRY_COMPARE(types, QStringList{u"setTdlibParameters"_s});
        QCOMPARE(m_fake.sent(), QList<QByteArray>{versionRequest});
    }

    void typeArgumentReplacesTypeInFields()
    {
        SessionWithChannel session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        session.send(u"getMe"_s, {{"@type"_L1, u"logOut"_s}, {"limit"_L1, 3}});
        const QJsonObject sent = QJsonDocument::fromJson(m_fake.sent().last()).object();
        QCOMPARE(sent, (QJsonObject{{"@type"_L1, u"getMe"_s}, {"limit"_L1, 3}}));
    }

    void eventsAreHandledOnTheMainThreadInOrder()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        QList<Step::Case> steps;
        bool everyStepOnMainThread = true;
        connect(&session, &TelegramSession::stepChanged, this, [&] {
            steps.append(session.step().kind());
            everyStepOnMainThread &= QThread::currentThread() == thread();
        });
        session.start(7, u"hash"_s);
        m_fake.pushAuthorizationState("authorizationStateWaitTdlibParameters");
        m_fake.pushAuthorizationState("authorizationStateWaitPhoneNumber");
        m_fake.pushAuthorizationState("authorizationStateWaitCode");
        QTRY_COMPARE(session.step(), Step::verificationCode());
        QCOMPARE(steps, (QList{Step::Case::Starting, Step::Case::PhoneNumber, Step::Case::VerificationCode}));
        QVERIFY(everyStepOnMainThread);
        const QJsonObject parameters = QJsonDocument::fromJson(m_fake.sent().at(1)).object();
        QCOMPARE(parameters.value("@type"_L1).toString(), u"setTdlibParameters"_s);
        QCOMPARE(parameters.value("api_id"_L1).toInteger(), 7);
    }

    void unreadableEventsAreReportedAndDropped()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        const QString unreadable = u"TDLib returned an unreadable response."_s;
        // Malformed UTF-8 in a value or a key: bad bytes, an overlong form, a
        // surrogate, a code point above U+10FFFF, a sequence cut short.
        for (const QByteArray &text :
             {"\xff\xfe"_ba, "\xC0\xAF"_ba, "\xED\xA0\x80"_ba, "\xF4\x90\x80\x80"_ba, "\xE2\x82"_ba}) {
            m_fake.push("{}");
            QTRY_COMPARE(session.startupStatus(), u"Received TDLib event: unknown"_s);
            m_fake.push(R"({"@type":"ok","text":")" + text + R"("})");
            QTRY_COMPARE(session.startupStatus(), unreadable);
            m_fake.push("{}");
            QTRY_COMPARE(session.startupStatus(), u"Received TDLib event: unknown"_s);
            m_fake.push(R"({"@type":"ok",")" + text + R"(":1})");
            QTRY_COMPARE(session.startupStatus(), unreadable);
        }
        m_fake.push(R"({"@type":"ok","text":"caf\xC3\xA9 \xF0\x9F\x98\x80"})");
        QTRY_COMPARE(session.startupStatus(), u"Received TDLib event: ok"_s);
        m_fake.push("{}");
        QTRY_COMPARE(session.startupStatus(), u"Received TDLib event: unknown"_s);
        m_fake.push("[]");
        QTRY_COMPARE(session.startupStatus(), unreadable);
        m_fake.push(R"({"@type":"updateOption","name":"version")"); // cut short
        m_fake.push(R"({"@type":"updateOption"})");
        QTRY_COMPARE(session.startupStatus(), u"Received TDLib event: updateOption"_s);
        QCOMPARE(session.step(), Step::starting());
    }

    void logoutStartsANewClientOnTheSameLibrary()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        m_fake.pushAuthorizationState("authorizationStateReady");
        QTRY_VERIFY(session.isReady());
        session.logOutAndChangeAccount();
        m_fake.pushAuthorizationState("authorizationStateLoggingOut");
        m_fake.pushAuthorizationState("authorizationStateClosing");
        m_fake.pushAuthorizationState("authorizationStateClosed");
        QTRY_COMPARE(m_fake.sent().count(versionRequest), 2);
        QCOMPARE(session.step(), Step::starting());
        m_fake.pushAuthorizationState("authorizationStateWaitTdlibParameters");
        m_fake.pushAuthorizationState("authorizationStateWaitPhoneNumber");
        QTRY_COMPARE(session.step(), Step::phoneNumber());
        QCOMPARE(m_fake.sentTypes().mid(1),
                 (QStringList{u"getChats"_s, u"loadChats"_s, u"getChats"_s, u"loadChats"_s, u"getContacts"_s,
                              u"getMe"_s, u"logOut"_s, u"getOption"_s, u"setTdlibParameters"_s}));
    }

    void quittingClosesTheClientAndEndsTheLoop()
    {
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_FAKE_BUNDLE)));
        session.start(1, u"hash"_s);
        session.shutDown();
        QCOMPARE(m_fake.sentTypes(), (QStringList{u"getOption"_s, u"close"_s}));
        QCOMPARE(m_fake.pendingCount(), 0); // closing and closed were received before returning
        QCOMPARE(session.step(), Step::starting());
        session.submitPhoneNumber(u"+44"_s); // still safe after quitting
    }

private:
    FakeTDLib m_fake;
};

QTEST_GUILESS_MAIN(ChannelTest)
#include "tst_channel.moc"
