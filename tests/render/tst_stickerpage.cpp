// The animated-sticker page: its exact text, its key, what its probe answers, and
// when a view loads one.

#include "render/StickerPage.h"

#include <QFile>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {

const QString head = u"<!doctype html><html><head><meta http-equiv=\"Content-Security-Policy\" "
                     u"content=\"default-src 'none'; "
                     "script-src 'unsafe-inline'; style-src 'unsafe-inline'; img-src data:; media-src data: blob:; "
                     "connect-src 'none'\">\n<style>html,body,#sticker{margin:0;width:100%;height:100%;overflow:hidden;"
                     "background:transparent}body{color:gray;font:12px system-ui}video{width:100%;height:100%;"
                     "object-fit:contain;pointer-events:none}</style></head>\n<body><div id=\"sticker\" style=\""_s;

} // namespace

class StickerPageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_folder.isValid());
        m_script = m_folder.filePath(u"player.js"_s);
        QVERIFY(write(m_script, "var lottie={};"));
    }

    void keysCarryTheFormat()
    {
        QCOMPARE(StickerPage::key(u"/s/a.tgs"_s, StickerFormat::Webp), u"/s/a.tgsstickerFormatWebp"_s);
        QCOMPARE(StickerPage::key(u"/s/a.tgs"_s, StickerFormat::Animated), u"/s/a.tgsstickerFormatTgs"_s);
        QCOMPARE(StickerPage::key(u"/s/a.tgs"_s, StickerFormat::Video), u"/s/a.tgsstickerFormatWebm"_s);
    }

    void videoPageIsExact()
    {
        const auto page = StickerPage::html(QByteArray("\x1a\x45\xdf\xa3", 4), StickerFormat::Video, m_script);
        QCOMPARE(page, head + u"display:none\"></div><video autoplay loop muted playsinline "
                              "src='data:video/webm;base64,GkXfow=='></video></body></html>"_s);
    }

    void webpGetsTheVideoMarkupInAVisibleContainer()
    {
        const auto page = StickerPage::html("ab", StickerFormat::Webp, u"/nonexistent/player.js"_s);
        QCOMPARE(page, head + u"\"></div><video autoplay loop muted playsinline "
                              "src='data:video/webm;base64,YWI='></video></body></html>"_s);
    }

    void lottiePageInlinesThePlayerAndTheBytes()
    {
        const auto page = StickerPage::html("ab", StickerFormat::Animated, m_script);
        QVERIFY(page);
        const QString prefix = head + u"\"></div><script>var lottie={};</script><script>"_s;
        QVERIFY2(page->startsWith(prefix), qPrintable(page->left(prefix.size() + 40)));
        QVERIFY(page->contains(u"atob('YWI=')"_s));
        QVERIFY(page->contains(u"new DecompressionStream('gzip')"_s));
        QVERIFY(page->contains(u"8000000"_s));
        QVERIFY(page->contains(u"'Too large'"_s));
        QVERIFY(page->contains(u"box.textContent='Sticker unavailable'"_s));
        // The page reports nothing of itself: the player probes it from outside.
        QVERIFY(!page->contains(u"title"_s));
        QVERIFY(page->contains(u"renderer:'svg',loop:true,autoplay:true"_s));
        QVERIFY(page->endsWith(u"</script></body></html>"_s));
        QCOMPARE(page->count(u"</script>"_s), 2);
    }

    void lottiePageNeedsThePlayer()
    {
        QCOMPARE(StickerPage::html("ab", StickerFormat::Animated, u"/nonexistent/player.js"_s), std::nullopt);
        const QString invalid = m_folder.filePath(u"invalid.js"_s);
        QVERIFY(write(invalid, "\xff\xfe\xfd"));
        QCOMPARE(StickerPage::html("ab", StickerFormat::Animated, invalid), std::nullopt);
    }

    void bundledPlayerIsFound()
    {
        QVERIFY2(QFile::exists(StickerPage::playerScriptPath()), qPrintable(StickerPage::playerScriptPath()));
        const auto page = StickerPage::html("ab", StickerFormat::Animated);
        QVERIFY(page);
        QVERIFY(page->contains(u"loadAnimation"_s));
    }

    void sameKeyLoadsOnce()
    {
        const QString path = m_folder.filePath(u"a.tgs"_s);
        QVERIFY(write(path, "gz"));
        StickerPage::Coordinator coordinator(m_script);
        QVERIFY(coordinator.update(path, StickerFormat::Animated));
        QCOMPARE(coordinator.key(), StickerPage::key(path, StickerFormat::Animated));
        QCOMPARE(coordinator.update(path, StickerFormat::Animated), std::nullopt);
        // A format change is a new page, even for the same file and the same markup.
        QVERIFY(coordinator.update(path, StickerFormat::Video));
        QVERIFY(coordinator.update(path, StickerFormat::Webp));
        QCOMPARE(coordinator.update(path, StickerFormat::Webp), std::nullopt);
        QVERIFY(coordinator.update(path, StickerFormat::Animated));
    }

    void unreadableOrMissingPlayerLeavesTheViewAlone()
    {
        StickerPage::Coordinator coordinator(u"/nonexistent/player.js"_s);
        QCOMPARE(coordinator.update(m_folder.filePath(u"missing.webm"_s), StickerFormat::Video), std::nullopt);
        QCOMPARE(coordinator.key(), QString());
        const QString path = m_folder.filePath(u"b.tgs"_s);
        QVERIFY(write(path, "gz"));
        QCOMPARE(coordinator.update(path, StickerFormat::Animated), std::nullopt);
        QCOMPARE(coordinator.key(), QString()); // tried again next time
        QVERIFY(coordinator.update(path, StickerFormat::Video));
    }

    void probeAnswersTellThePlayState()
    {
        QCOMPARE(StickerPage::playStateFromProbe(QString()), StickerPage::PlayState::Loading);
        QCOMPARE(StickerPage::playStateFromProbe(u"playing"_s), StickerPage::PlayState::Playing);
        QCOMPARE(StickerPage::playStateFromProbe(u"unavailable"_s), StickerPage::PlayState::Unavailable);
        QCOMPARE(StickerPage::playStateFromProbe(u"Playing"_s), StickerPage::PlayState::Loading);
        // The probe reads the page's elements and the loader's note, and writes nothing.
        const QString probe = StickerPage::playStateProbe();
        QVERIFY(probe.contains(u"'Sticker unavailable'"_s));
        QVERIFY(!probe.contains(u"title"_s));
        QVERIFY(!probe.contains(QRegularExpression(u"textContent\\s*=[^=]"_s)));
    }

    void sizeLimit()
    {
        const QString path = m_folder.filePath(u"big.webm"_s);
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        QVERIFY(file.resize(StickerPage::maximumFileSize));
        file.close();
        StickerPage::Coordinator coordinator(m_script);
        const auto page = coordinator.update(path, StickerFormat::Video);
        QVERIFY(page);
        QVERIFY(page->size() > StickerPage::maximumFileSize);

        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.resize(StickerPage::maximumFileSize + 1));
        file.close();
        StickerPage::Coordinator another(m_script);
        QCOMPARE(another.update(path, StickerFormat::Video), std::nullopt);
        QCOMPARE(another.key(), QString());
    }

private:
    static bool write(const QString &path, const QByteArray &bytes)
    {
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    }

    QTemporaryDir m_folder;
    QString m_script;
};

QTEST_MAIN(StickerPageTest)
#include "tst_stickerpage.moc"
