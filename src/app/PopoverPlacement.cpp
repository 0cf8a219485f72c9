#include "PopoverPlacement.h"

#include <QtGlobal>

#include <algorithm>

namespace {
// The gap between the icon or pointer and the popover.
constexpr int gap = 4;
} // namespace

QPoint popoverPosition(const QRect &iconGeometry, const QPoint &pointer, const QRect &availableArea,
                       const QSize &popoverSize)
{
    const bool iconKnown = iconGeometry.isValid() && !iconGeometry.isEmpty();
    const QRect anchor = iconKnown ? iconGeometry : QRect(pointer, QSize(1, 1));
    const bool panelAtBottom = anchor.center().y() > availableArea.center().y();

    int x = anchor.center().x() - popoverSize.width() / 2;
    int y = panelAtBottom ? anchor.top() - gap - popoverSize.height() : anchor.bottom() + 1 + gap;

    // Inside the available area; a popover larger than the area keeps its top left visible.
    x = std::max(availableArea.left(), std::min(x, availableArea.right() + 1 - popoverSize.width()));
    y = std::max(availableArea.top(), std::min(y, availableArea.bottom() + 1 - popoverSize.height()));
    return {x, y};
}

WindowPlacement windowPlacement(QStringView platformName, bool waylandSession)
{
    if (platformName.startsWith(u"wayland"))
        return WindowPlacement::ByCompositor;
    return waylandSession ? WindowPlacement::HostPointOnly : WindowPlacement::Free;
}

bool inWaylandSession()
{
    return qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
           qEnvironmentVariable("XDG_SESSION_TYPE").compare(QLatin1String("wayland"), Qt::CaseInsensitive) == 0;
}
