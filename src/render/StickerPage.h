#pragma once

#include "session/ModelTypes.h"

#include <QByteArray>
#include <QString>

#include <optional>

// The self-contained page that plays an animated (gzip Lottie) or video (WebM)
// sticker in a web view. The sticker travels inside the page as base64 and the
// Lottie player is inlined, so the page needs, and is allowed, no network at all.
namespace StickerPage {

// Larger sticker files get no page.
inline constexpr qint64 maximumFileSize = 10'000'000;
// The page gives up when a Lottie animation inflates past this many bytes.
inline constexpr qint64 maximumAnimationSize = 8'000'000;

// How far a page got: playing once the first frame is there, unavailable when the
// sticker cannot be played. The page itself reports nothing; the player runs
// playStateProbe() beside the page's own scripts (in a world of its own) and reads
// its answer with playStateFromProbe().
enum class PlayState { Loading, Playing, Unavailable };
QString playStateProbe();
PlayState playStateFromProbe(const QString &answer);

// Where the Lottie player is looked for: the resource bundle of the running
// application (share/vost/Vost_Vost.bundle/Resources/lottie_light.min.js).
QString playerScriptPath();

// The identity of a page: the sticker's path followed by a tag for its format.
QString key(const QString &path, StickerFormat format);

// The page for the sticker's bytes; none when the Lottie player cannot be read.
// Formats other than Animated get the video markup.
std::optional<QString> html(const QByteArray &data, StickerFormat format);
std::optional<QString> html(const QByteArray &data, StickerFormat format, const QString &playerScriptPath);

// Decides when a view loads a new page. One per view.
class Coordinator
{
public:
    Coordinator() = default;
    explicit Coordinator(QString playerScriptPath)
        : m_playerScriptPath(std::move(playerScriptPath))
    {}

    // The page to load now, or none: when the key is the one already loaded, when
    // the file cannot be read or is over the size limit, or when there is no page.
    std::optional<QString> update(const QString &path, StickerFormat format);
    // The key of the page loaded last; empty before the first.
    QString key() const { return m_key; }

private:
    QString m_playerScriptPath;
    QString m_key;
};

} // namespace StickerPage
