// The tray item's picture and label, pixel by pixel, and where the popover opens.
#include "LoginPresenter.h"
#include "PopoverPlacement.h"
#include "StatusItemImage.h"
#include "Symbols.h"

#include <QDir>
#include <QPainter>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
const QColor glyph(0x20, 0x20, 0x20);

bool isBadgeRed(QRgb pixel)
{
    return qAlpha(pixel) == 255 && qRed(pixel) == 0xFF && qGreen(pixel) == 0x3B && qBlue(pixel) == 0x30;
}

bool isWhitish(QRgb pixel)
{
    return qAlpha(pixel) == 255 && qRed(pixel) > 0xF0 && qGreen(pixel) > 0x90 && qBlue(pixel) > 0x90;
}

// The bounding box of pixels that are not transparent, in device pixels.
QRect inkBox(const QImage &image, const QRect &area)
{
    QRect box;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (qAlpha(image.pixel(x, y)) > 0)
                box = box.united(QRect(x, y, 1, 1));
    return box;
}

QRect whiteBox(const QImage &image, const QRect &area)
{
    QRect box;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (isWhitish(image.pixel(x, y)))
                box = box.united(QRect(x, y, 1, 1));
    return box;
}
} // namespace

class StatusItemTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labels()
    {
        QCOMPARE(StatusItem::accessibleLabel(0), u"Vost"_s);
        QCOMPARE(StatusItem::accessibleLabel(-4), u"Vost"_s);
        QCOMPARE(StatusItem::accessibleLabel(3), u"Vost, 3 unread messages"_s);
        QCOMPARE(StatusItem::accessibleLabel(1000), u"Vost, 1000 unread messages"_s);
    }

    // The tool tip names the connection's state only while it is not ready.
    void toolTips()
    {
        QCOMPARE(StatusItem::toolTip(0, ConnectionState::Ready), u"Vost"_s);
        QCOMPARE(StatusItem::toolTip(3, ConnectionState::Ready), u"Vost, 3 unread messages"_s);
        QCOMPARE(StatusItem::toolTip(3, ConnectionState::WaitingForNetwork),
                 u"Vost, 3 unread messages\nWaiting for network\u2026"_s);
        QCOMPARE(StatusItem::toolTip(0, ConnectionState::ConnectingToProxy), u"Vost\nConnecting\u2026"_s);
        QCOMPARE(StatusItem::toolTip(0, ConnectionState::Connecting), u"Vost\nConnecting\u2026"_s);
        QCOMPARE(StatusItem::toolTip(-2, ConnectionState::Updating), u"Vost\nUpdating\u2026"_s);
    }

    void badgeTextAndFont()
    {
        QCOMPARE(StatusItem::badgeText(0), QString());
        QCOMPARE(StatusItem::badgeText(1), u"1"_s);
        QCOMPARE(StatusItem::badgeText(99), u"99"_s);
        QCOMPARE(StatusItem::badgeText(100), u"99+"_s);
        QCOMPARE(StatusItem::badgeFontSize(1), 9.0);
        QCOMPARE(StatusItem::badgeFontSize(9), 9.0);
        QCOMPARE(StatusItem::badgeFontSize(10), 7.5);
        QCOMPARE(StatusItem::badgeFontSize(99), 7.5);
        QCOMPARE(StatusItem::badgeFontSize(100), 6.1);
    }

    void sizes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("pixels");
        QTest::newRow("0 at 1x") << 0 << 1.0 << QSize(22, 22);
        QTest::newRow("-3 at 1x") << -3 << 1.0 << QSize(22, 22);
        QTest::newRow("1 at 1x") << 1 << 1.0 << QSize(38, 22);
        QTest::newRow("0 at 2x") << 0 << 2.0 << QSize(44, 44);
        QTest::newRow("5 at 2x") << 5 << 2.0 << QSize(76, 44);
        QTest::newRow("5 at 1.5x") << 5 << 1.5 << QSize(57, 33);
    }

    void sizes()
    {
        QFETCH(int, count);
        QFETCH(qreal, ratio);
        QFETCH(QSize, pixels);
        const QImage image = StatusItem::image(count, ratio, glyph);
        QCOMPARE(image.size(), pixels);
        QCOMPARE(image.devicePixelRatio(), ratio);
    }

    void withoutBadgeTheGlyphIsCentred()
    {
        const QImage image = StatusItem::image(0, 1.0, glyph);
        const QRect ink = inkBox(image, image.rect());
        // Inside x 3..19, y 3..19, and centred within a pixel.
        QVERIFY2(QRect(3, 3, 16, 16).contains(ink),
                 qPrintable(u"ink %1,%2 %3x%4"_s.arg(ink.x()).arg(ink.y()).arg(ink.width()).arg(ink.height())));
        QVERIFY(qAbs((ink.left() - 0) - (21 - ink.right())) <= 1);
        // The glyph's colour, and the ellipsis cut out of it.
        QCOMPARE(QColor(image.pixel(5, 8)).rgb(), glyph.rgb());
        QCOMPARE(qAlpha(image.pixel(11, 9)), 0);
        for (int x = 0; x < image.width(); ++x)
            QVERIFY(!isBadgeRed(image.pixel(x, 11)));
    }

    void badgeDisc_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<qreal>("ratio");
        for (const int count : {1, 7, 10, 99, 100, 5000})
            for (const qreal ratio : {1.0, 2.0})
                QTest::addRow("%d at %gx", count, ratio) << count << ratio;
    }

    void badgeDisc()
    {
        QFETCH(int, count);
        QFETCH(qreal, ratio);
        const QImage image = StatusItem::image(count, ratio, glyph);
        const auto at = [&](qreal x, qreal y) { return image.pixel(int(x * ratio), int(y * ratio)); };
        // The glyph moved left: it starts at x 1.
        const QRect glyphInk = inkBox(image, QRect(0, 0, int(20 * ratio), image.height()));
        QVERIFY(glyphInk.left() >= int(1 * ratio) - 1 && glyphInk.left() <= int(2 * ratio));
        // The red disc fills x 22..36, y 4..18 around the text; the corners of its
        // square stay clear.
        QVERIFY(isBadgeRed(at(25.5, 6.5)));
        QVERIFY(isBadgeRed(at(32.5, 6.5)));
        QVERIFY(isBadgeRed(at(25.5, 15.5)));
        QVERIFY(isBadgeRed(at(32.5, 15.5)));
        QCOMPARE(qAlpha(at(22.3, 4.3)), 0);
        QCOMPARE(qAlpha(at(35.7, 17.7)), 0);
        QCOMPARE(qAlpha(at(29, 1)), 0);
        QCOMPARE(qAlpha(at(29, 20.5)), 0);
        // White text centred in the disc.
        const QRect disc(int(22 * ratio), int(4 * ratio), int(14 * ratio), int(14 * ratio));
        const QRect text = whiteBox(image, disc);
        QVERIFY2(!text.isEmpty(), "no white text in the badge");
        const QPointF centre = QRectF(text).center() / ratio;
        QVERIFY2(qAbs(centre.x() - 29) <= 1.0 && qAbs(centre.y() - 11) <= 1.5,
                 qPrintable(u"text centred at %1,%2"_s.arg(centre.x()).arg(centre.y())));
        QVERIFY(disc.contains(text));
    }

    void longerTextIsSmallerButWider()
    {
        const QRect disc(22, 4, 14, 14);
        const QImage one = StatusItem::image(8, 4.0, glyph);
        const QImage two = StatusItem::image(88, 4.0, glyph);
        const QImage three = StatusItem::image(888, 4.0, glyph);
        const QRect scaled(disc.topLeft() * 4, disc.size() * 4);
        const QRect oneBox = whiteBox(one, scaled);
        const QRect twoBox = whiteBox(two, scaled);
        const QRect threeBox = whiteBox(three, scaled);
        QVERIFY(oneBox.height() > twoBox.height());
        QVERIFY(twoBox.height() > threeBox.height());
        QVERIFY(threeBox.width() > oneBox.width());
    }

    void symbolsAreKnown()
    {
        const QStringList files = QDir(u":/symbols"_s).entryList({u"*.svg"_s});
        QVERIFY(files.size() >= 20);
        for (const QString &file : files) {
            const QString name = file.chopped(4);
            QVERIFY2(Symbols::isKnown(name), qPrintable(name));
            QImage image(32, 32, QImage::Format_ARGB32_Premultiplied);
            image.fill(Qt::transparent);
            QPainter painter(&image);
            Symbols::draw(painter, name, QRectF(0, 0, 32, 32), QColor(200, 30, 40));
            painter.end();
            QVERIFY2(!inkBox(image, image.rect()).isEmpty(), qPrintable(name));
            // Drawn in the colour asked for, not the drawing's own black.
            int tinted = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = 0; x < image.width(); ++x) {
                    const QColor pixel = image.pixelColor(x, y);
                    if (pixel.alpha() == 255) {
                        QCOMPARE(pixel, QColor(200, 30, 40));
                        ++tinted;
                    }
                }
            QVERIFY2(tinted > 0, qPrintable(name));
        }
        for (const QString &unknown : {u"star"_s, u""_s, u"../symbols/lock.fill"_s})
            QVERIFY(!Symbols::isKnown(unknown));
    }

    void popoverPlacement()
    {
        const QRect screen(0, 0, 1280, 800);
        const QRect available(0, 24, 1280, 776);
        const QSize size(860, 560);
        // Under an icon in a top panel, centred on it, kept inside the screen.
        QCOMPARE(popoverPosition(QRect(600, 0, 24, 24), {}, available, size), QPoint(181, 28));
        QCOMPARE(popoverPosition(QRect(1240, 0, 24, 24), {}, available, size), QPoint(420, 28));
        // Above an icon in a bottom panel.
        QCOMPARE(popoverPosition(QRect(1240, 776, 24, 24), {}, QRect(0, 0, 1280, 776), size), QPoint(420, 212));
        // Unknown icon: at the pointer.
        QCOMPARE(popoverPosition(QRect(), QPoint(100, 10), available, size), QPoint(0, 24));
        QCOMPARE(popoverPosition(QRect(), QPoint(700, 790), screen, size), QPoint(270, 226));
    }

    void loginTexts()
    {
        using Case = Step::Case;
        QCOMPARE(LoginTexts::icon(Case::Password), u"lock.fill"_s);
        QCOMPARE(LoginTexts::icon(Case::Unavailable), u"exclamationmark.triangle.fill"_s);
        QCOMPARE(LoginTexts::icon(Case::VerificationCode), u"number.square.fill"_s);
        for (const Case step : {Case::Idle, Case::Starting, Case::PhoneNumber, Case::Ready})
            QCOMPARE(LoginTexts::icon(step), u"paperplane.fill"_s);
        QCOMPARE(LoginTexts::title(Case::Password), u"Two-step verification"_s);
        QCOMPARE(LoginTexts::title(Case::Unavailable), u"Telegram is unavailable"_s);
        QCOMPARE(LoginTexts::title(Case::PhoneNumber), u"Sign in to Telegram"_s);
        QCOMPARE(LoginTexts::title(Case::VerificationCode), u"Enter your verification code"_s);
        QCOMPARE(LoginTexts::title(Case::Ready), u"Preparing Telegram"_s);
        QCOMPARE(LoginTexts::instructions(Case::Starting), u"Starting the secure TDLib connection…"_s);
        QCOMPARE(LoginTexts::field(Case::Password), LoginTexts::Field::Secure);
        QCOMPARE(LoginTexts::field(Case::Unavailable), LoginTexts::Field::None);
        QCOMPARE(LoginTexts::placeholder(Case::PhoneNumber), u"Telephone number, including country code"_s);
        QCOMPARE(LoginTexts::placeholder(Case::VerificationCode), u"Telegram verification code"_s);
        QCOMPARE(LoginTexts::placeholder(Case::Password), u"Two-step verification password"_s);
        QCOMPARE(LoginTexts::hintLine(u"demo"_s), u"Hint: demo"_s);
        QCOMPARE(LoginTexts::appVersion({}), u"1.2"_s);
        QCOMPARE(LoginTexts::appVersion({{u"CFBundleShortVersionString"_s, u"0.1.0"_s}}), u"0.1.0"_s);
    }

    void presenterWithoutSessionHasNoField()
    {
        LoginPresenter presenter;
        QCOMPARE(presenter.title(), u"Preparing Telegram"_s);
        QVERIFY(!presenter.hasField());
        QVERIFY(!presenter.canContinue());
        presenter.setFieldText(u"ignored"_s);
        QCOMPARE(presenter.fieldText(), QString());
        presenter.submit();
    }
};

QTEST_MAIN(StatusItemTest)
#include "tst_statusitem.moc"
