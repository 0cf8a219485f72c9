#pragma once

#include <QColor>
#include <QHash>
#include <QString>

#include <functional>

class QPainter;

// The drawings behind the symbols of the composer, the pickers and the message
// widgets ("paperclip", "face.smiling", "sticker", "ellipsis", "xmark", "doc",
// "play.fill", "pause.fill", "arrow.up.right", "arrow.down.to.line",
// "chevron.left", "chevron.right", "mappin", "phone.fill", "video.fill",
// "chart.bar.fill", "person.fill"), each on the 16 x 16 grid of Symbols.
namespace MoreSymbols {
using Drawing = std::function<void(QPainter &, const QColor &)>;
// An empty drawing for a name it does not know.
Drawing drawingFor(const QString &name);
} // namespace MoreSymbols
