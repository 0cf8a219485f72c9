#include "StatusItemImage.h"

#include "Symbols.h"

#include <QCoreApplication>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>

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
} // namespace

QSizeF StatusItem::imageSize(int unreadCount)
{
    return unreadCount < 1 ? QSizeF(22.0, 22.0) : QSizeF(38.0, 22.0);
}

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

qreal StatusItem::badgeFontSize(int unreadCount)
{
    if (unreadCount <= 9)
        return 9.0;
    if (unreadCount <= 99)
        return 7.5;
    return 6.1;
}

QRectF StatusItem::glyphRect(int unreadCount)
{
    return unreadCount < 1 ? QRectF(3.0, 3.0, 16.0, 16.0) : QRectF(1.0, 3.0, 16.0, 16.0);
}

QImage StatusItem::image(int unreadCount, qreal devicePixelRatio, const QColor &glyphColor)
{
    const int count = std::max(unreadCount, 0);
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const QSizeF logical = imageSize(unreadCount);
    QImage picture(int(std::ceil(logical.width() * ratio)), int(std::ceil(logical.height() * ratio)),
                   QImage::Format_ARGB32_Premultiplied);
    picture.fill(Qt::transparent);
    // One point is one logical pixel, as on the platform the badge sizes come from.
    const int dotsPerMetre = int(std::lround(pointsPerInch / metresPerInch));
    picture.setDotsPerMeterX(dotsPerMetre);
    picture.setDotsPerMeterY(dotsPerMetre);
    picture.setDevicePixelRatio(ratio);

    QPainter painter(&picture);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    Symbols::draw(painter, u"ellipsis.message.fill"_s, glyphRect(count), glyphColor);
    if (count >= 1) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(badgeColor);
        painter.drawEllipse(badgeRect);

        const QString text = badgeText(count);
        QFont font;
        font.setBold(true);
        font.setPointSizeF(badgeFontSize(count));
        font.setHintingPreference(QFont::PreferNoHinting);
        painter.setFont(font);
        painter.setPen(Qt::white);
        const QFontMetricsF metrics(font, &picture);
        const qreal width = metrics.horizontalAdvance(text);
        const qreal height = metrics.height();
        const QPointF origin(badgeRect.center().x() - width / 2,
                             badgeRect.center().y() - height / 2 + metrics.ascent());
        painter.drawText(origin, text);
    }
    return picture;
}
