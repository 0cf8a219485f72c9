#include "StatusItemImage.h"

#include "Symbols.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {
class StatusItemTexts
{
    Q_DECLARE_TR_FUNCTIONS(StatusItem)

public:
    static QString connection(ConnectionState state)
    {
        switch (state) {
        case ConnectionState::WaitingForNetwork:
            //: The tray item's tool tip while the computer has no network connection
            return tr("Waiting for network…");
        case ConnectionState::ConnectingToProxy:
        case ConnectionState::Connecting:
            //: The tray item's tool tip while the link to Telegram is being made
            return tr("Connecting…");
        case ConnectionState::Updating:
            //: The tray item's tool tip while what happened offline is being fetched
            return tr("Updating…");
        case ConnectionState::Ready:
            break;
        }
        return {};
    }
};

constexpr qreal pointsPerInch = 72.0;
constexpr qreal metresPerInch = 0.0254;
// The badge's height as a share of the slot, and its digits' and side padding's
// as shares of the badge's height.
constexpr qreal badgeHeightShare = 0.6;
constexpr qreal digitShare = 0.62;
constexpr qreal narrowDigitShare = 0.57;
constexpr qreal paddingShare = 0.16;
} // namespace

QString StatusItem::accessibleLabel(int unreadCount)
{
    const int count = std::max(unreadCount, 0);
    if (count < 1)
        return u"Vost"_s;
    //: The tray icon's accessible name.
    return QCoreApplication::translate("StatusItem", "Vost, %n unread messages", nullptr, count);
}

QString StatusItem::toolTip(int unreadCount, ConnectionState connection)
{
    const QString state = StatusItemTexts::connection(connection);
    return state.isEmpty() ? accessibleLabel(unreadCount) : accessibleLabel(unreadCount) + u'\n' + state;
}

QString StatusItem::badgeText(int unreadCount)
{
    if (unreadCount < 1)
        return {};
    return unreadCount <= 99 ? QString::number(unreadCount) : u"99+"_s;
}

QRectF StatusItem::squareBadgeRect(int unreadCount, int side)
{
    const int characters = int(badgeText(unreadCount).size());
    if (characters == 0 || side <= 0)
        return {};
    // Over half the slot high, so that the count is still read at 22 pixels.
    const qreal height = std::round(side * badgeHeightShare);
    const qreal width = characters == 1 ? height : characters == 2 ? std::round(height * 1.45) : qreal(side);
    return {side - width, 0.0, width, height};
}

QImage StatusItem::squareImage(int unreadCount, int side, qreal devicePixelRatio, const QColor &glyphColor)
{
    const int count = std::max(unreadCount, 0);
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const int logicalSide = std::max(side, 1);
    const int pixels = int(std::ceil(logicalSide * ratio));
    QImage picture(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    // One point is one logical pixel, so that font sizes are sizes in the picture.
    const int dotsPerMetre = int(std::lround(pointsPerInch / metresPerInch));
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.setDevicePixelRatio(ratio);

    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Symbols::draw(painter, u"ellipsis.message.fill"_s, QRectF(0, 0, logicalSide, logicalSide), glyphColor);
    if (count < 1)
        return picture;

    const QRectF badge = squareBadgeRect(count, logicalSide);
    const qreal radius = badge.height() / 2;
    // A transparent ring parts the badge from the glyph under it.
    const qreal ring = logicalSide / 22.0;
    painter.setPen(Qt::NoPen);
    painter.setCompositionMode(QPainter::CompositionMode_Clear);
    painter.setBrush(Qt::black);
    painter.drawRoundedRect(badge.adjusted(-ring, -ring, ring, ring), radius + ring, radius + ring);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    painter.setBrush(badgeColor);
    painter.drawRoundedRect(badge, radius, radius);

    // Bold digits about three fifths of the badge high: 8 pixels at 22, 7.5 for "99+".
    const QString text = badgeText(count);
    QFont font;
    font.setBold(true);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setPointSizeF(100.0);
    const qreal digitAt100 = QFontMetricsF(font, &picture).tightBoundingRect(u"0"_s).height();
    if (digitAt100 <= 0)
        return picture;
    // Three characters take the slot's width: a little shorter, so that they need
    // less narrowing and stay apart.
    const qreal share = text.size() > 2 ? narrowDigitShare : digitShare;
    font.setPointSizeF(100.0 * badge.height() * share / digitAt100);
    const QFontMetricsF metrics(font, &picture);
    const qreal digitHeight = metrics.tightBoundingRect(u"0"_s).height();
    const QRectF ink = metrics.tightBoundingRect(text);
    // "99+" is narrowed rather than made smaller, to keep its digits as tall.
    const qreal room = badge.width() - 2 * badge.height() * paddingShare;
    const qreal squeeze = ink.width() > room ? room / ink.width() : 1.0;
    // The baseline on a device pixel keeps the digits' feet sharp.
    const qreal baseline = std::round((badge.center().y() + digitHeight / 2) * ratio) / ratio;
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.translate(badge.center().x(), baseline);
    painter.scale(squeeze, 1.0);
    painter.drawText(QPointF(-ink.center().x(), 0), text);
    return picture;
}

bool StatusItem::panelIsAlwaysDark(QStringView currentDesktop)
{
    // A list such as "ubuntu:GNOME". GNOME Classic draws a light top bar.
    const QList<QStringView> names = currentDesktop.split(u':', Qt::SkipEmptyParts);
    const auto named = [&](QStringView name) {
        return std::any_of(names.cbegin(), names.cend(),
                           [&](QStringView part) { return part.compare(name, Qt::CaseInsensitive) == 0; });
    };
    if (named(u"GNOME-Classic"))
        return false;
    return named(u"GNOME") || named(u"Unity") || named(u"Pantheon") || named(u"sway") || named(u"Hyprland");
}

QColor StatusItem::glyphColor(DesktopColorScheme scheme, bool panelAlwaysDark, const QPalette &palette)
{
    const QColor text = palette.color(QPalette::WindowText);
    const QColor light = text.lightness() >= 128 ? text : QColor(Qt::white);
    const QColor dark = text.lightness() < 128 ? text : QColor(0x20, 0x20, 0x20);
    if (panelAlwaysDark)
        return light;
    switch (scheme) {
    case DesktopColorScheme::Dark:
        return light;
    case DesktopColorScheme::Light:
        return dark;
    case DesktopColorScheme::NoPreference:
    case DesktopColorScheme::Unknown:
        break;
    }
    return palette.color(QPalette::Window).lightness() < 128 ? light : dark;
}
