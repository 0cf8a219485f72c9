#include "render/LottieAnimation.h"

#include "render/StickerPage.h"

#include <QFile>

#include <rlottie.h>
#include <zlib.h>

#include <algorithm>

LottieAnimation::LottieAnimation(std::unique_ptr<rlottie::Animation> animation)
    : m_animation(std::move(animation))
{}

LottieAnimation::~LottieAnimation() = default;
LottieAnimation::LottieAnimation(LottieAnimation &&) noexcept = default;
LottieAnimation &LottieAnimation::operator=(LottieAnimation &&) noexcept = default;

std::optional<QByteArray> LottieAnimation::inflate(const QByteArray &gzip, qsizetype limit)
{
    z_stream stream{};
    // 16 + MAX_WBITS: a gzip header, not a raw zlib one.
    if (inflateInit2(&stream, 16 + MAX_WBITS) != Z_OK)
        return std::nullopt;
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(gzip.constData()));
    stream.avail_in = uInt(gzip.size());
    QByteArray output;
    char chunk[64 * 1024];
    int status = Z_OK;
    while (status == Z_OK) {
        stream.next_out = reinterpret_cast<Bytef *>(chunk);
        stream.avail_out = sizeof chunk;
        status = ::inflate(&stream, Z_NO_FLUSH);
        if (status != Z_OK && status != Z_STREAM_END)
            break;
        output.append(chunk, qsizetype(sizeof chunk - stream.avail_out));
        if (output.size() > limit) {
            status = Z_MEM_ERROR;
            break;
        }
        // No progress with input left means a truncated stream.
        if (status == Z_OK && stream.avail_in == 0 && stream.avail_out != 0)
            status = Z_BUF_ERROR;
    }
    inflateEnd(&stream);
    if (status != Z_STREAM_END)
        return std::nullopt;
    return output;
}

std::variant<LottieAnimation, LottieAnimation::Failure> LottieAnimation::load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Failure::Unreadable;
    // One byte past the limit tells a file that is too large from one that fits.
    const QByteArray data = file.read(StickerPage::maximumFileSize + 1);
    if (data.size() > StickerPage::maximumFileSize)
        return Failure::TooLarge;
    return fromCompressed(data);
}

std::variant<LottieAnimation, LottieAnimation::Failure> LottieAnimation::fromCompressed(const QByteArray &data)
{
    if (data.size() > StickerPage::maximumFileSize)
        return Failure::TooLarge;
    if (data.size() < 2 || uchar(data.at(0)) != 0x1f || uchar(data.at(1)) != 0x8b)
        return Failure::NotGzip;
    const std::optional<QByteArray> json = inflate(data, StickerPage::maximumAnimationSize);
    if (!json)
        return Failure::NotGzip;
    // No cache: the same sticker shown twice is parsed twice, and nothing outlives its views.
    std::unique_ptr<rlottie::Animation> animation =
        rlottie::Animation::loadFromData(json->toStdString(), std::string(), std::string(), false);
    if (!animation || animation->totalFrame() == 0)
        return Failure::NotLottie;
    size_t width = 0;
    size_t height = 0;
    animation->size(width, height);
    if (width == 0 || height == 0)
        return Failure::NotLottie;
    return LottieAnimation(std::move(animation));
}

int LottieAnimation::frameCount() const
{
    return int(std::min<size_t>(m_animation->totalFrame(), 100'000));
}

double LottieAnimation::frameRate() const
{
    const double rate = m_animation->frameRate();
    return rate > 0 && rate < 1000 ? rate : 30.0;
}

QSize LottieAnimation::size() const
{
    size_t width = 0;
    size_t height = 0;
    m_animation->size(width, height);
    return QSize(int(std::min<size_t>(width, 100'000)), int(std::min<size_t>(height, 100'000)));
}

QImage LottieAnimation::render(int frame, const QSize &pixelSize) const
{
    if (pixelSize.isEmpty())
        return {};
    QImage image(pixelSize, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    rlottie::Surface surface(reinterpret_cast<uint32_t *>(image.bits()), size_t(image.width()),
                             size_t(image.height()), size_t(image.bytesPerLine()));
    m_animation->renderSync(size_t(std::clamp(frame, 0, std::max(0, frameCount() - 1))), surface);
    return image;
}
