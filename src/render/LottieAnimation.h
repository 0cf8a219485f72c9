#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <memory>
#include <optional>
#include <variant>

namespace rlottie {
class Animation;
}

// An animated sticker (gzip-compressed Lottie JSON, a .tgs file) played natively:
// rendered frame by frame at the size it is shown, never all frames at once. The
// same limits as the sticker page hold: files over 10 MB and animations that
// inflate past 8 MB are refused.
class LottieAnimation
{
public:
    enum class Failure { Unreadable, TooLarge, NotGzip, NotLottie };

    ~LottieAnimation();
    LottieAnimation(LottieAnimation &&) noexcept;
    LottieAnimation &operator=(LottieAnimation &&) noexcept;

    // Reads and parses a sticker file; a failure names what was wrong.
    static std::variant<LottieAnimation, Failure> load(const QString &path);
    static std::variant<LottieAnimation, Failure> fromCompressed(const QByteArray &data);

    // The gzip stream inflated, or none when it is not gzip, truncated or inflates
    // past limit bytes.
    static std::optional<QByteArray> inflate(const QByteArray &gzip, qsizetype limit);

    int frameCount() const;
    double frameRate() const;
    // The animation's own size, as its author drew it.
    QSize size() const;
    // One frame drawn into an image of the given pixel size, aspect ratio kept.
    QImage render(int frame, const QSize &pixelSize) const;

private:
    explicit LottieAnimation(std::unique_ptr<rlottie::Animation> animation);

    std::unique_ptr<rlottie::Animation> m_animation;
};
