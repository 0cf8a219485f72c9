// The messages between Vost and its sticker host: each kind survives the trip in
// pieces of any size, a frame keeps its pixels and transparency, and what is
// malformed (too long, of no known kind, cut short, padded, or a frame whose size
// does not match its pixels) stops the reader without a crash or a huge allocation.

#include "render/StickerHostProtocol.h"

#include <QDataStream>
#include <QIODevice>
#include <QTest>

#include <functional>
#include <limits>

using namespace Qt::StringLiterals;
using StickerHostProtocol::Kind;
using StickerHostProtocol::Message;
using StickerHostProtocol::Reader;

namespace {

QByteArray framed(const QByteArray &body)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << quint32(body.size());
    return bytes + body;
}

// A body as the other side would write it: its kind, its view, then the rest.
QByteArray body(quint8 kind, quint32 view, const std::function<void(QDataStream &)> &rest = {})
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << kind << view;
    if (rest)
        rest(stream);
    return bytes;
}

} // namespace

class StickerHostProtocolTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyKindArrivesWholeInPiecesOfAnySize()
    {
        QImage frame(3, 2, QImage::Format_ARGB32_Premultiplied);
        frame.fill(Qt::transparent);
        frame.setPixel(1, 1, qRgba(255, 0, 0, 255));
        frame.setPixel(2, 0, qPremultiply(qRgba(0, 0, 255, 128)));
        frame.setDevicePixelRatio(2);

        // Each kind for view 7, filled in as the other side would.
        const auto filled = [](Kind kind, const std::function<void(Message &)> &fill = {}) {
            Message made(kind, 7);
            if (fill)
                fill(made);
            return made;
        };
        const QList<Message> sent = {
            filled(Kind::Show,
                   [](Message &m) {
                       m.size = QSize(320, 320);
                       m.devicePixelRatio = 2;
                       m.text = u"<!doctype html><p>ünïcödé 🐱</p>"_s;
                   }),
            filled(Kind::Resize, [](Message &m) { m.size = QSize(100, 50); }),
            filled(Kind::Close),
            Message(Kind::Acknowledge, 4000000000u),
            filled(Kind::Run,
                   [](Message &m) {
                       m.request = 9;
                       m.text = u"document.title"_s;
                   }),
            filled(Kind::Loaded, [](Message &m) { m.succeeded = true; }),
            filled(Kind::PlayState, [](Message &m) { m.text = u"playing"_s; }),
            filled(Kind::Frame, [&frame](Message &m) { m.frame = frame; }),
            filled(Kind::Result,
                   [](Message &m) {
                       m.request = 9;
                       m.result = QVariantList{1, u"two"_s, true};
                   }),
        };

        QByteArray stream;
        for (const Message &message : sent)
            stream += StickerHostProtocol::encode(message);
        for (const int piece : {1, 3, 64, int(stream.size())}) {
            Reader reader;
            QList<Message> received;
            for (qsizetype at = 0; at < stream.size(); at += piece) {
                reader.append(stream.mid(at, piece));
                while (const std::optional<Message> message = reader.next())
                    received << *message;
            }
            QVERIFY(!reader.failed());
            QCOMPARE(received.size(), sent.size());
            for (qsizetype i = 0; i < sent.size(); ++i) {
                QCOMPARE(received[i].kind, sent[i].kind);
                QCOMPARE(received[i].view, sent[i].view);
            }
            QCOMPARE(received[0].size, QSize(320, 320));
            QCOMPARE(received[0].devicePixelRatio, 2.0);
            QCOMPARE(received[0].text, sent[0].text);
            QCOMPARE(received[1].size, QSize(100, 50));
            QCOMPARE(received[4].request, 9u);
            QCOMPARE(received[4].text, sent[4].text);
            QVERIFY(received[5].succeeded);
            QCOMPARE(received[6].text, u"playing"_s);
            QCOMPARE(received[7].frame, frame);
            QCOMPARE(received[7].frame.devicePixelRatio(), 2.0);
            QCOMPARE(qAlpha(received[7].frame.pixel(0, 0)), 0);
            QCOMPARE(received[8].result, sent[8].result);
        }
    }

    void malformedMessagesStopTheReader_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::newRow("empty body") << framed({});
        QTest::newRow("longer than any message") << QByteArray("\xff\xff\xff\xff", 4);
        QTest::newRow("unknown kind") << framed(body(200, 1));
        QTest::newRow("kind zero") << framed(body(0, 1));
        QTest::newRow("cut short") << framed(body(quint8(Kind::Show), 1, [](QDataStream &s) { s << qint32(5); }));
        QTest::newRow("bytes left over") << framed(body(quint8(Kind::Close), 1, [](QDataStream &s) { s << 1; }));
        QTest::newRow("text claims more than there is")
            << framed(body(quint8(Kind::PlayState), 1, [](QDataStream &s) { s << quint32(0x7ffffff0); }));
        QTest::newRow("negative size") << framed(
            body(quint8(Kind::Resize), 1, [](QDataStream &s) { s << QSize(-5, 10) << 1.0; }));
        QTest::newRow("huge size") << framed(
            body(quint8(Kind::Resize), 1, [](QDataStream &s) { s << QSize(100000, 100000) << 1.0; }));
        QTest::newRow("ratio not a number") << framed(body(quint8(Kind::Resize), 1, [](QDataStream &s) {
            s << QSize(10, 10) << std::numeric_limits<double>::quiet_NaN();
        }));
        QTest::newRow("frame of fewer pixels than its size") << framed(body(quint8(Kind::Frame), 1, [](QDataStream &s) {
            s << qint32(4) << qint32(4) << 1.0 << QByteArray(4 * 4 * 4 - 1, '\0');
        }));
        QTest::newRow("frame of no size") << framed(
            body(quint8(Kind::Frame), 1, [](QDataStream &s) { s << qint32(0) << qint32(0) << 1.0 << QByteArray(); }));
        QTest::newRow("frame too wide") << framed(body(quint8(Kind::Frame), 1, [](QDataStream &s) {
            s << qint32(1 << 20) << qint32(1) << 1.0 << QByteArray(4 << 20, '\0');
        }));
        QTest::newRow("frame whose size overflows") << framed(body(quint8(Kind::Frame), 1, [](QDataStream &s) {
            s << qint32(0x10000) << qint32(0x10000) << 1.0 << QByteArray(16, '\0');
        }));
    }

    void malformedMessagesStopTheReader()
    {
        QFETCH(QByteArray, bytes);
        Reader reader;
        reader.append(bytes);
        // A good message after a bad one is not read either.
        reader.append(StickerHostProtocol::encode(Message(Kind::Close, 1)));
        QCOMPARE(reader.next().has_value(), false);
        QVERIFY(reader.failed());
        QCOMPARE(reader.next().has_value(), false);
    }

    // A message whose end has not come yet is no failure: the reader waits.
    void anUnfinishedMessageWaits()
    {
        Message title(Kind::PlayState, 3);
        title.text = u"loading"_s;
        const QByteArray bytes = StickerHostProtocol::encode(title);
        Reader reader;
        reader.append(bytes.left(bytes.size() - 1));
        QVERIFY(!reader.next());
        QVERIFY(!reader.failed());
        reader.append(bytes.right(1));
        const std::optional<Message> message = reader.next();
        QVERIFY(message);
        QCOMPARE(message->text, u"loading"_s);
    }
};

QTEST_GUILESS_MAIN(StickerHostProtocolTest)
#include "tst_stickerhostprotocol.moc"
