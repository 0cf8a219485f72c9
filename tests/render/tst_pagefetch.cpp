// The page fetcher: its messages, and Vost's side of it against the real helper
// process and a server on loopback.

#include "../support/ChildProcesses.h"
#include "LoopbackHttpServer.h"

#include "bundle/AppBundle.h"
#include "render/PageFetchClient.h"
#include "render/PageFetchProtocol.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>
#include <QTest>

#include <signal.h>

using namespace Qt::StringLiterals;
using namespace PageFetchProtocol;

namespace {

// The page fetchers running below this process.
QList<qint64> fetcherProcesses()
{
    return ChildProcesses::named("vost-page-fetch");
}

} // namespace

class PageFetchTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_server.isListening());
        m_server.answer("/page", {200, "text/html; charset=UTF-8", "<title>Page</title>"});
        m_server.answer("/gone", {404, "text/plain", "not here"});
        m_server.answer("/drip", {200, "text/html", QByteArray(64, 'x'), {}, LoopbackHttpServer::Delivery::Drip});
    }

    void cleanup() { PageFetchClient::instance().setLingerInterval(std::chrono::seconds(5)); }

    // Requests and answers arrive whole, however the bytes are cut.
    void messagesSurviveAnyCut()
    {
        Answer answer = notReached(7);
        answer.reached = true;
        answer.status = 203;
        answer.mimeType = u"image/png"_s;
        answer.body = QByteArray("\0\1\2 body", 9);
        const QByteArray bytes = encode(Request{3, QUrl(u"https://example.org/a?b=%C3%A9"_s), 15'000, true}) +
                                 encode(answer) + encode(notReached(8));
        for (qsizetype piece : {qsizetype(1), qsizetype(5), bytes.size()}) {
            Reader reader;
            QList<Message> read;
            for (qsizetype at = 0; at < bytes.size(); at += piece) {
                reader.append(bytes.mid(at, piece));
                while (std::optional<Message> message = reader.next())
                    read.append(*message);
            }
            QVERIFY(!reader.failed());
            QCOMPARE(read.size(), 3);
            const auto &request = std::get<Request>(read.at(0));
            QCOMPARE(request.id, 3u);
            QCOMPARE(request.url, QUrl(u"https://example.org/a?b=%C3%A9"_s));
            QCOMPARE(request.timeoutMs, 15'000);
            QVERIFY(request.browserIdentity);
            const auto &reached = std::get<Answer>(read.at(1));
            QCOMPARE(reached.id, 7u);
            QVERIFY(reached.reached);
            QCOMPARE(reached.status, std::optional<int>(203));
            QCOMPARE(reached.mimeType, u"image/png"_s);
            QCOMPARE(reached.body, answer.body);
            const auto &notAnswered = std::get<Answer>(read.at(2));
            QVERIFY(!notAnswered.reached);
            QVERIFY(!notAnswered.status);
        }
    }

    void malformedMessagesStopTheReader_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("longer than any message") << QByteArray("\x7f\xff\xff\xff", 4) + QByteArray(16, 'x');
        QTest::newRow("not CBOR") << MessageFraming::frame("\xff\xff\xff"_ba);
        QTest::newRow("not a map") << MessageFraming::frame("\x83\x01\x02\x03"_ba);
        // {"id": -1, "reached": false, "type": "", "body": h''}
        QTest::newRow("negative id") << MessageFraming::frame("\xa4\x62id\x20\x67reached\xf4\x64type\x60\x64"
                                                              "body\x40"_ba);
        // {"id": 1, "url": 5, "timeout": 1, "browser": true}
        QTest::newRow("url of the wrong type") << MessageFraming::frame("\xa4\x62id\x01\x63url\x05\x67timeout\x01\x67"
                                                                        "browser\xf5"_ba);
        // {"id": 1, "reached": true, "status": 70000, "type": "", "body": h''}
        QTest::newRow("status out of range")
            << MessageFraming::frame("\xa5\x62id\x01\x67reached\xf5\x66status\x1a\x00\x01\x11"
                                     "\x70\x64type\x60\x64"
                                     "body\x40"_ba);
    }

    void malformedMessagesStopTheReader()
    {
        QFETCH(QByteArray, bytes);
        Reader reader;
        reader.append(bytes);
        QVERIFY(!reader.next());
        QVERIFY(reader.failed());
        // Nothing after it is read either.
        reader.append(encode(notReached(1)));
        QVERIFY(!reader.next());
    }

    void fetchesThroughTheHelper()
    {
        QCOMPARE(fetch(m_server.url(u"/page"_s)).status, std::optional<int>(200));
        const Answer page = fetch(m_server.url(u"/page"_s));
        QVERIFY(page.reached);
        QCOMPARE(page.mimeType, u"text/html"_s);
        QCOMPARE(page.body, "<title>Page</title>"_ba);
        const Answer gone = fetch(m_server.url(u"/gone"_s));
        QVERIFY(gone.reached);
        QCOMPARE(gone.status, std::optional<int>(404));
        // Previews describe web pages; local files stay out of reach.
        const Answer local = fetch(QUrl::fromLocalFile(QDir::currentPath()));
        QVERIFY(!local.reached);
        QVERIFY(local.body.isEmpty());
        QCOMPARE(fetcherProcesses().size(), 1);
    }

    // When nothing has waited for a while, the helper goes, and comes back when needed.
    void theHelperEndsWhenIdle()
    {
        PageFetchClient &client = PageFetchClient::instance();
        client.setLingerInterval(std::chrono::milliseconds(100));
        QVERIFY(fetch(m_server.url(u"/page"_s)).reached);
        QTRY_VERIFY(!client.isRunning());
        QTRY_VERIFY(fetcherProcesses().isEmpty());
        QVERIFY(fetch(m_server.url(u"/page"_s)).reached);
        QVERIFY(client.isRunning());
    }

    // A fetch is answered once, also when the helper dies under it; a cancelled one never.
    void everyFetchIsAnsweredOnce()
    {
        PageFetchClient &client = PageFetchClient::instance();
        QObject context;
        QList<Answer> answers;
        const auto record = [&answers](const Answer &answer) { answers.append(answer); };
        client.fetch(m_server.url(u"/drip"_s), 60'000, false, &context, record);
        const quint32 cancelled = client.fetch(m_server.url(u"/drip"_s), 60'000, false, &context, record);
        client.cancel(cancelled);
        QTRY_COMPARE(fetcherProcesses().size(), 1);
        QTRY_VERIFY(m_server.requestedPaths().count("/drip") >= 2);
        ::kill(pid_t(fetcherProcesses().constFirst()), SIGKILL);
        QTRY_COMPARE(answers.size(), 1);
        QVERIFY(!answers.constFirst().reached);
        QVERIFY(!client.isRunning());
        // The next fetch starts a new helper.
        QVERIFY(fetch(m_server.url(u"/page"_s)).reached);
        QTest::qWait(100);
        QCOMPARE(answers.size(), 1);
    }

    // A fetch the helper could not read (no address, a negative time-out) never goes
    // to it: it would end on it and take the other fetches along. That fetch alone is
    // answered as not reached.
    void anUnreadableFetchLeavesTheOthers()
    {
        PageFetchClient &client = PageFetchClient::instance();
        QObject context;
        QList<Answer> answers;
        const auto record = [&answers](const Answer &answer) { answers.append(answer); };
        const quint32 dripping = client.fetch(m_server.url(u"/drip"_s), 60'000, false, &context, record);
        QTRY_COMPARE(fetcherProcesses().size(), 1);
        const QList<qint64> fetcher = fetcherProcesses();
        const QList<quint32> unreadable{client.fetch(QUrl(), 10'000, false, &context, record),
                                        client.fetch(QUrl(u"https://"_s), 10'000, false, &context, record),
                                        client.fetch(m_server.url(u"/page"_s), -1, false, &context, record)};
        QVERIFY(answers.isEmpty()); // later, never from inside the call
        QTRY_COMPARE(answers.size(), 3);
        for (const Answer &answer : std::as_const(answers)) {
            QVERIFY(unreadable.contains(answer.id));
            QVERIFY(!answer.reached);
        }
        QTest::qWait(300);
        QCOMPARE(answers.size(), 3);
        QCOMPARE(fetcherProcesses(), fetcher);
        QVERIFY(fetch(m_server.url(u"/page"_s)).reached);
        QCOMPARE(fetcherProcesses(), fetcher);
        client.cancel(dripping);
    }

    // The helper itself: its input ending ends it; a malformed request ends it at once.
    void theHelperEndsWithItsInput()
    {
        const QString program = AppBundle::main().helperProgram(u"vost-page-fetcher"_s).value_or(QString());
        QProcess helper;
        helper.start(program, {});
        QVERIFY(helper.waitForStarted());
        helper.closeWriteChannel();
        QVERIFY(helper.waitForFinished(10'000));
        QCOMPARE(helper.exitCode(), 0);

        helper.start(program, {});
        QVERIFY(helper.waitForStarted());
        helper.write(encode(notReached(1)));
        QVERIFY(helper.waitForFinished(10'000));
        QCOMPARE(helper.exitCode(), 1);
        QVERIFY(helper.readAllStandardOutput().isEmpty());
    }

private:
    static Answer fetch(const QUrl &url)
    {
        QObject context;
        std::optional<Answer> answer;
        PageFetchClient::instance().fetch(url, 10'000, false, &context, [&answer](const Answer &a) { answer = a; });
        [&] { QTRY_VERIFY_WITH_TIMEOUT(answer.has_value(), 20'000); }();
        return answer.value_or(notReached(0));
    }

    LoopbackHttpServer m_server;
};

QTEST_MAIN(PageFetchTest)
#include "tst_pagefetch.moc"
