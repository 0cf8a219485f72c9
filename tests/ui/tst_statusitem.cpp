// The tray item's picture and label, pixel by pixel, and where the popover opens.
#include "LoginPresenter.h"
#include "PopoverPlacement.h"
#include "StatusItemImage.h"
#include "Symbols.h"

#include <QDir>
#include <QPainter>
#include <QPalette>
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

    void badgeText()
    {
        QCOMPARE(StatusItem::badgeText(0), QString());
        QCOMPARE(StatusItem::badgeText(-5), QString());
        QCOMPARE(StatusItem::badgeText(1), u"1"_s);
        QCOMPARE(StatusItem::badgeText(99), u"99"_s);
        QCOMPARE(StatusItem::badgeText(100), u"99+"_s);
    }

    void squareSizes_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        QTest::addColumn<QSize>("pixels");
        QTest::newRow("0, 22 at 1x") << 0 << 22 << 1.0 << QSize(22, 22);
        QTest::newRow("-3, 22 at 1x") << -3 << 22 << 1.0 << QSize(22, 22);
        QTest::newRow("5, 24 at 1x") << 5 << 24 << 1.0 << QSize(24, 24);
        QTest::newRow("5, 32 at 2x") << 5 << 32 << 2.0 << QSize(64, 64);
        QTest::newRow("500, 22 at 1.5x") << 500 << 22 << 1.5 << QSize(33, 33);
        QTest::newRow("1, 22 at a bad ratio") << 1 << 22 << 0.0 << QSize(22, 22);
    }

    void squareSizes()
    {
        QFETCH(int, count);
        QFETCH(int, side);
        QFETCH(qreal, ratio);
        QFETCH(QSize, pixels);
        const QImage image = StatusItem::squareImage(count, side, ratio, glyph);
        QCOMPARE(image.size(), pixels);
        QCOMPARE(image.devicePixelRatio(), ratio > 0 ? ratio : 1.0);
    }

    void theGlyphFillsTheSlot_data()
    {
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        for (const int side : StatusItem::squareSides)
            for (const qreal ratio : {1.0, 2.0})
                QTest::addRow("%d at %gx", side, ratio) << side << ratio;
    }

    void theGlyphFillsTheSlot()
    {
        QFETCH(int, side);
        QFETCH(qreal, ratio);
        const QImage image = StatusItem::squareImage(0, side, ratio, glyph);
        const QRect ink = inkBox(image, image.rect());
        // Within a pixel or so of every edge, and centred.
        QVERIFY2(ink.width() >= image.width() - 2 * ratio && ink.height() >= image.height() * 0.8,
                 qPrintable(u"ink %1x%2 in %3"_s.arg(ink.width()).arg(ink.height()).arg(image.width())));
        QVERIFY(qAbs(ink.left() - (image.width() - 1 - ink.right())) <= 1);
        // The glyph's colour in the bubble's body, the ellipsis cut out of it.
        const auto at = [&](qreal x, qreal y) { return image.pixel(int(x * side * ratio), int(y * side * ratio)); };
        QCOMPARE(QColor(at(0.15, 0.3)).rgb(), glyph.rgb());
        QCOMPARE(qAlpha(at(0.5, 0.42)), 0);
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                QVERIFY(!isBadgeRed(image.pixel(x, y)));
    }

    void theBadgeCoversTheTopRightCorner_data()
    {
        QTest::addColumn<int>("count");
        QTest::addColumn<int>("side");
        QTest::addColumn<qreal>("ratio");
        for (const int count : {1, 7, 42, 99, 100, 5000})
            for (const int side : StatusItem::squareSides)
                for (const qreal ratio : {1.0, 2.0})
                    QTest::addRow("%d in %d at %gx", count, side, ratio) << count << side << ratio;
    }

    void theBadgeCoversTheTopRightCorner()
    {
        QFETCH(int, count);
        QFETCH(int, side);
        QFETCH(qreal, ratio);
        const QImage image = StatusItem::squareImage(count, side, ratio, glyph);
        const QRectF badge = StatusItem::squareBadgeRect(count, side);
        const QRect device(int(badge.x() * ratio), int(badge.y() * ratio), int(std::ceil(badge.width() * ratio)),
                           int(std::ceil(badge.height() * ratio)));
        // Over half the slot high, at its top and right edges, narrower than the slot
        // for one or two digits.
        QVERIFY(badge.height() > side / 2.0);
        QCOMPARE(badge.top(), 0.0);
        QCOMPARE(badge.right(), qreal(side));
        QVERIFY(badge.width() <= side);
        if (count < 100)
            QVERIFY(badge.width() < side);
        // Red around the count, nothing red outside the badge; the glyph is still
        // there under it.
        QVERIFY(isBadgeRed(image.pixel(device.left() + device.width() / 2, device.top() + int(ratio))));
        QVERIFY(
            isBadgeRed(image.pixel(device.right() - int(std::ceil(1.5 * ratio)), device.top() + device.height() / 2)));
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (!device.contains(x, y))
                    QVERIFY(!isBadgeRed(image.pixel(x, y)));
        QCOMPARE(QColor(image.pixel(int(0.25 * side * ratio), int(0.7 * side * ratio))).rgb(), glyph.rgb());

        // The count in white inside the badge, centred, its digits at least 7 pixels
        // tall at 22 (the rows of the badge with white in them).
        const QRect text = whiteBox(image, device);
        QVERIFY2(!text.isEmpty(), "no white count in the badge");
        QVERIFY(device.adjusted(1, 1, -1, -1).contains(text));
        int whiteRows = 0;
        for (int y = device.top(); y <= device.bottom(); ++y) {
            bool white = false;
            for (int x = device.left(); x <= device.right() && !white; ++x)
                white = isWhitish(image.pixel(x, y));
            whiteRows += white ? 1 : 0;
        }
        QVERIFY2(whiteRows >= int(std::floor(7.0 * side / 22 * ratio)),
                 qPrintable(u"digits %1 pixels tall"_s.arg(whiteRows)));
        const QPointF centre = QRectF(text).center() / ratio;
        QVERIFY2(qAbs(centre.x() - badge.center().x()) <= 1.0 && qAbs(centre.y() - badge.center().y()) <= 1.0,
                 qPrintable(u"count centred at %1,%2"_s.arg(centre.x()).arg(centre.y())));
    }

    // "99+" keeps its three characters apart and whole: three runs of white
    // columns, none touching the badge's ends.
    void ninetyNinePlusFits()
    {
        for (const int side : StatusItem::squareSides) {
            const QImage image = StatusItem::squareImage(1234, side, 1.0, glyph);
            const QRect badge = StatusItem::squareBadgeRect(1234, side).toRect();
            int runs = 0;
            bool inRun = false;
            for (int x = badge.left(); x <= badge.right(); ++x) {
                bool white = false;
                for (int y = badge.top(); y <= badge.bottom() && !white; ++y)
                    white = isWhitish(image.pixel(x, y));
                runs += white && !inRun ? 1 : 0;
                inRun = white;
            }
            QVERIFY2(runs == 3, qPrintable(u"%1 runs of white at %2"_s.arg(runs).arg(side)));
            const QRect text = whiteBox(image, badge);
            QVERIFY(text.left() > badge.left() + 1 && text.right() < badge.right() - 1);
        }
    }

    void glyphColours_data()
    {
        QTest::addColumn<int>("scheme");
        QTest::addColumn<bool>("alwaysDark");
        QTest::addColumn<bool>("darkPalette");
        QTest::addColumn<bool>("lightGlyph");
        using Scheme = DesktopColorScheme;
        QTest::newRow("portal prefers dark, light palette") << int(Scheme::Dark) << false << false << true;
        QTest::newRow("portal prefers light, dark palette") << int(Scheme::Light) << false << true << false;
        QTest::newRow("portal prefers dark, dark palette") << int(Scheme::Dark) << false << true << true;
        QTest::newRow("no preference, dark palette") << int(Scheme::NoPreference) << false << true << true;
        QTest::newRow("no preference, light palette") << int(Scheme::NoPreference) << false << false << false;
        QTest::newRow("no portal, light palette") << int(Scheme::Unknown) << false << false << false;
        QTest::newRow("no portal, dark palette") << int(Scheme::Unknown) << false << true << true;
        QTest::newRow("dark bar, light palette") << int(Scheme::Unknown) << true << false << true;
        QTest::newRow("dark bar, portal prefers light") << int(Scheme::Light) << true << false << true;
    }

    void glyphColours()
    {
        QFETCH(int, scheme);
        QFETCH(bool, alwaysDark);
        QFETCH(bool, darkPalette);
        QFETCH(bool, lightGlyph);
        QPalette palette;
        palette.setColor(QPalette::Window, darkPalette ? QColor(0x2B, 0x2B, 0x2B) : QColor(0xEF, 0xEF, 0xEF));
        palette.setColor(QPalette::WindowText, darkPalette ? QColor(0xF0, 0xF0, 0xF0) : QColor(0x10, 0x10, 0x10));
        const QColor colour = StatusItem::glyphColor(DesktopColorScheme(scheme), alwaysDark, palette);
        QCOMPARE(colour.alpha(), 255);
        if (lightGlyph)
            QVERIFY2(colour.lightness() >= 200, qPrintable(colour.name()));
        else
            QVERIFY2(colour.lightness() <= 60, qPrintable(colour.name()));
        // The palette's own text colour where it is the right shade.
        if (lightGlyph == darkPalette)
            QCOMPARE(colour, palette.color(QPalette::WindowText));
    }

    void desktopsWithDarkBars()
    {
        for (const auto &name : {u"GNOME"_s, u"ubuntu:GNOME"_s, u"gnome"_s, u"sway"_s, u"Hyprland"_s, u"Pantheon"_s})
            QVERIFY2(StatusItem::panelIsAlwaysDark(name), qPrintable(name));
        for (const auto &name : {u""_s, u"KDE"_s, u"XFCE"_s, u"LXQt"_s, u"GNOME-Classic:GNOME"_s, u"GNOMEish"_s})
            QVERIFY2(!StatusItem::panelIsAlwaysDark(name), qPrintable(name));
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
        // A Wayland client places nothing; under Xwayland only the host's point counts.
        QCOMPARE(windowPlacement(u"wayland", true), WindowPlacement::ByCompositor);
        QCOMPARE(windowPlacement(u"wayland-egl", true), WindowPlacement::ByCompositor);
        QCOMPARE(windowPlacement(u"xcb", true), WindowPlacement::HostPointOnly);
        QCOMPARE(windowPlacement(u"xcb", false), WindowPlacement::Free);
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
