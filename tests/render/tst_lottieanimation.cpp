// The native player's reader of animated stickers: a real animation plays, and
// every kind of broken or hostile file is refused with its reason, quickly and
// within bounded memory.

#include "../../demo/src/Gzip.h"
#include "render/LottieAnimation.h"
#include "render/StickerPage.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

// A red square that moves across a canvas of the given size over 30 frames.
QByteArray lottie(int width = 512, int height = 512)
{
    return u"{\"v\":\"5.5.2\",\"fr\":30,\"ip\":0,\"op\":30,\"w\":%1,\"h\":%2,\"layers\":[{\"ty\":4,\"ind\":1,"
           "\"ip\":0,\"op\":30,\"st\":0,\"ks\":{\"o\":{\"a\":0,\"k\":100},\"r\":{\"a\":0,\"k\":0},"
           "\"p\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[%3,%4,0],\"i\":{\"x\":[0.5],\"y\":[0.5]},"
           "\"o\":{\"x\":[0.5],\"y\":[0.5]}},{\"t\":30,\"s\":[%5,%4,0]}]},"
           "\"a\":{\"a\":0,\"k\":[0,0,0]},\"s\":{\"a\":0,\"k\":[100,100,100]}},"
           "\"shapes\":[{\"ty\":\"rc\",\"p\":{\"a\":0,\"k\":[0,0]},\"s\":{\"a\":0,\"k\":[%6,%6]},\"r\":{\"a\":0,\"k\":0}},"
           "{\"ty\":\"fl\",\"c\":{\"a\":0,\"k\":[1,0,0,1]},\"o\":{\"a\":0,\"k\":100}}]}]}"_s
        .arg(width)
        .arg(height)
        .arg(width / 4)
        .arg(height / 2)
        .arg(width * 3 / 4)
        .arg(std::max(1, width / 4))
        .toUtf8();
}

int redPixels(const QImage &image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor colour = image.pixelColor(x, y);
            count += colour.alpha() > 200 && colour.red() > 200 && colour.green() < 60;
        }
    }
    return count;
}

} // namespace

class LottieAnimationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aStickerPlaysFrameByFrameAtTheSizeShown()
    {
        auto result = LottieAnimation::fromCompressed(gzip(lottie()));
        auto *animation = std::get_if<LottieAnimation>(&result);
        QVERIFY(animation);
        QCOMPARE(animation->frameCount(), 30);
        QCOMPARE(animation->frameRate(), 30.0);
        QCOMPARE(animation->size(), QSize(512, 512));
        const QImage first = animation->render(0, QSize(64, 64));
        const QImage last = animation->render(29, QSize(64, 64));
        QCOMPARE(first.size(), QSize(64, 64));
        QVERIFY(redPixels(first) > 20);
        // The square moved from the left half to the right half.
        QVERIFY(first.pixelColor(16, 32).red() > 200);
        QVERIFY(last.pixelColor(47, 32).red() > 200);
        QVERIFY(first.pixelColor(47, 32).alpha() < 50);
    }

    void brokenFilesAreRefusedWithTheirReason_data()
    {
        QTest::addColumn<QByteArray>("data");
        QTest::addColumn<LottieAnimation::Failure>("failure");
        const QByteArray good = gzip(lottie());
        QTest::newRow("plain JSON") << lottie() << LottieAnimation::Failure::NotGzip;
        QTest::newRow("truncated gzip") << good.left(good.size() / 2) << LottieAnimation::Failure::NotGzip;
        QTest::newRow("gzip header only") << good.left(10) << LottieAnimation::Failure::NotGzip;
        QTest::newRow("empty") << QByteArray() << LottieAnimation::Failure::NotGzip;
        QTest::newRow("not Lottie") << gzip("{\"hello\": [1, 2, 3") << LottieAnimation::Failure::NotLottie;
        QTest::newRow("JSON of another kind") << gzip("[\"w\", 512]") << LottieAnimation::Failure::NotLottie;
        // Nine megabytes of spaces inflate past the limit from a few kilobytes.
        QTest::newRow("inflation bomb") << gzip(QByteArray(9'000'000, ' ')) << LottieAnimation::Failure::NotGzip;
        QTest::newRow("too large") << QByteArray(int(StickerPage::maximumFileSize) + 1, '\x1f')
                                   << LottieAnimation::Failure::TooLarge;
    }

    void brokenFilesAreRefusedWithTheirReason()
    {
        QFETCH(QByteArray, data);
        QFETCH(LottieAnimation::Failure, failure);
        auto result = LottieAnimation::fromCompressed(data);
        QVERIFY(std::holds_alternative<LottieAnimation::Failure>(result));
        QCOMPARE(std::get<LottieAnimation::Failure>(result), failure);
    }

    void inflatingStopsAtTheLimit()
    {
        const QByteArray bomb = gzip(QByteArray(9'000'000, ' '));
        QVERIFY(bomb.size() < 100'000);
        QVERIFY(!LottieAnimation::inflate(bomb, StickerPage::maximumAnimationSize));
        QCOMPARE(LottieAnimation::inflate(bomb, 10'000'000)->size(), 9'000'000);
    }

    void aHugeCanvasIsDrawnOnlyAtTheSizeShown()
    {
        // The author's canvas is never allocated: frames are drawn at the size shown.
        auto result = LottieAnimation::fromCompressed(gzip(lottie(60000, 60000)));
        auto *animation = std::get_if<LottieAnimation>(&result);
        QVERIFY(animation);
        QCOMPARE(animation->size(), QSize(60000, 60000));
        const QImage frame = animation->render(0, QSize(80, 80));
        QCOMPARE(frame.size(), QSize(80, 80));
        QVERIFY(redPixels(frame) > 20);
    }

    void filesAreReadThroughTheSameRules()
    {
        QTemporaryDir folder;
        QVERIFY(std::holds_alternative<LottieAnimation::Failure>(LottieAnimation::load(folder.filePath(u"missing"_s))));
        QCOMPARE(std::get<LottieAnimation::Failure>(LottieAnimation::load(folder.filePath(u"missing"_s))),
                 LottieAnimation::Failure::Unreadable);
        QFile file(folder.filePath(u"sticker.tgs"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(gzip(lottie()));
        file.close();
        QVERIFY(std::holds_alternative<LottieAnimation>(LottieAnimation::load(file.fileName())));
    }
};

QTEST_GUILESS_MAIN(LottieAnimationTest)
#include "tst_lottieanimation.moc"
