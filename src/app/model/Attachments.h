#pragma once

#include "session/ModelTypes.h"

#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

#include <optional>

// How a file the user picked, dropped or pasted is sent: pictures as photos,
// everything else as documents, and files that cannot be sent not at all.
namespace Attachments {
Q_NAMESPACE
QML_ELEMENT

enum class Refusal { Unreadable, Empty, Folder, TooLarge };
Q_ENUM_NS(Refusal)

// Telegram takes documents up to 2 GB and photos up to 10 MB; a larger picture
// goes as a document.
inline constexpr qint64 maximumFileSize = 2'000'000'000;
inline constexpr qint64 maximumPhotoSize = 10'000'000;

// Why the file cannot be sent, or none when it can: it is a regular file that
// opens and reads.
std::optional<Refusal> refusal(const QString &path);
// A picture Telegram shows as a photo: by its content alone, a still image that
// Qt can read (an animated GIF, a vector SVG or anything that does not decode is
// a document).
bool isPhotoImage(const QString &path);
PendingAttachmentKind kindFor(const QString &path);
// A local path from a path or a file URL ("file:///..."); "" for other URLs.
QString localPath(const QString &pathOrUrl);

} // namespace Attachments
