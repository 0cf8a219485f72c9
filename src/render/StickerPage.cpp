#include "render/StickerPage.h"

#include "bundle/AppBundle.h"

#include <QFile>
#include <QStringDecoder>

using namespace Qt::StringLiterals;

namespace StickerPage {

namespace {

// The content security policy forbids every fetch; only inline script and style
// and data or blob media may be used.
constexpr auto head =
    "<!doctype html><html><head><meta http-equiv=\"Content-Security-Policy\" "
    "content=\"default-src 'none'; "
    "script-src 'unsafe-inline'; style-src 'unsafe-inline'; img-src data:; media-src data: blob:; "
    "connect-src 'none'\">\n"
    "<style>html,body,#sticker{margin:0;width:100%;height:100%;overflow:hidden;background:transparent}"
    "body{color:gray;font:12px system-ui}video{width:100%;height:100%;object-fit:contain;pointer-events:none}"
    "</style></head>\n"
    "<body><div id=\"sticker\" style=\""_L1;

// Inflates the gzip bytes with a running total (a guard against decompression
// bombs), parses the JSON and plays it looping in the container; any failure shows
// a short note instead.
constexpr auto lottieLoaderStart = "</script><script>(async()=>{const box=document.getElementById('sticker');try{"
                                   "const bytes=Uint8Array.from(atob('"_L1;
constexpr auto lottieLoaderEnd =
    "'),c=>c.charCodeAt(0));"
    "const reader=new Blob([bytes]).stream().pipeThrough(new DecompressionStream('gzip')).getReader();"
    "const chunks=[];let total=0;"
    "for(;;){const {done,value}=await reader.read();if(done)break;total+=value.length;"
    "if(total>8000000){await reader.cancel();throw new Error('Too large');}chunks.push(value);}"
    "const all=new Uint8Array(total);let offset=0;for(const c of chunks){all.set(c,offset);offset+=c.length;}"
    "const animationData=JSON.parse(new TextDecoder().decode(all));"
    "lottie.loadAnimation({container:box,renderer:'svg',loop:true,autoplay:true,animationData});"
    "}catch(e){box.textContent='Sticker unavailable';}})();</script>"_L1;

// Reads how far the page got from its elements alone, so the page itself carries
// nothing for the player: a video has data or an error; the Lottie player has drawn
// into the container, or the loader has written its note there.
constexpr auto probe = "(()=>{const video=document.querySelector('video');"
                       "if(video)return video.error?'unavailable':(video.readyState>=2?'playing':'');"
                       "const box=document.getElementById('sticker');if(!box)return '';"
                       "if(box.querySelector('svg'))return 'playing';"
                       "return box.textContent==='Sticker unavailable'?'unavailable':'';})()"_L1;

std::optional<QString> readPlayerScript(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return std::nullopt;
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

} // namespace

QString playStateProbe()
{
    return probe;
}

PlayState playStateFromProbe(const QString &answer)
{
    if (answer == "playing"_L1)
        return PlayState::Playing;
    if (answer == "unavailable"_L1)
        return PlayState::Unavailable;
    return PlayState::Loading;
}

QString playerScriptPath()
{
    return AppBundle::main().resourcePath(u"Vost_Vost.bundle/Resources/lottie_light.min.js"_s);
}

QString key(const QString &path, StickerFormat format)
{
    switch (format) {
    case StickerFormat::Webp:
        return path + "stickerFormatWebp"_L1;
    case StickerFormat::Animated:
        return path + "stickerFormatTgs"_L1;
    case StickerFormat::Video:
        break;
    }
    return path + "stickerFormatWebm"_L1;
}

std::optional<QString> html(const QByteArray &data, StickerFormat format)
{
    return html(data, format, playerScriptPath());
}

std::optional<QString> html(const QByteArray &data, StickerFormat format, const QString &scriptPath)
{
    const QString base64 = QString::fromLatin1(data.toBase64());
    QString body;
    if (format == StickerFormat::Animated) {
        const std::optional<QString> script = readPlayerScript(scriptPath);
        if (!script)
            return std::nullopt;
        body = "<script>"_L1 + *script + lottieLoaderStart + base64 + lottieLoaderEnd;
    } else {
        body = "<video autoplay loop muted playsinline src='data:video/webm;base64,"_L1 + base64 + "'></video>"_L1;
    }
    QString page = head;
    if (format == StickerFormat::Video)
        page += "display:none"_L1;
    page += "\"></div>"_L1 + body + "</body></html>"_L1;
    return page;
}

std::optional<QString> Coordinator::update(const QString &path, StickerFormat format)
{
    const QString pageKey = StickerPage::key(path, format);
    if (pageKey == m_key)
        return std::nullopt; // a redraw never reloads a playing sticker
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    if (file.size() > maximumFileSize)
        return std::nullopt;
    // Read one byte past the limit, in case the file grew after the size was taken.
    const QByteArray data = file.read(maximumFileSize + 1);
    if (file.error() != QFileDevice::NoError || data.size() > maximumFileSize)
        return std::nullopt;
    std::optional<QString> page =
        m_playerScriptPath.isEmpty() ? html(data, format) : html(data, format, m_playerScriptPath);
    if (page)
        m_key = pageKey;
    return page;
}

} // namespace StickerPage
