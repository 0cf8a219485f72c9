#include "MediaFiles.h"

#include "Gzip.h"

#include <QBuffer>
#include <QColor>
#include <QImage>
#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <QtMath>

#include <zlib.h>

#include <cmath>

using namespace Qt::StringLiterals;

namespace demo::media {

namespace {

QColor hueColor(int seed, int offset, int saturation = 170, int value = 230)
{
    return QColor::fromHsv((seed * 47 + offset) % 360, saturation, value);
}

QByteArray encode(const QImage &image, bool png)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (!png && image.save(&buffer, "JPG", 85))
        return bytes;
    bytes.clear();
    buffer.seek(0);
    image.save(&buffer, "PNG");
    return bytes;
}

void appendLE(QByteArray &out, quint32 value, int bytes)
{
    for (int i = 0; i < bytes; ++i)
        out.append(char((value >> (8 * i)) & 0xff));
}

// Bits written least significant first, as WebP and GIF want them.
class BitWriter
{
public:
    void write(quint32 value, int bits)
    {
        for (int i = 0; i < bits; ++i) {
            m_current |= ((value >> i) & 1u) << m_used;
            if (++m_used == 8)
                flush();
        }
    }
    QByteArray finish()
    {
        if (m_used)
            flush();
        return m_bytes;
    }

private:
    void flush()
    {
        m_bytes.append(char(m_current));
        m_current = 0;
        m_used = 0;
    }
    QByteArray m_bytes;
    quint32 m_current = 0;
    int m_used = 0;
};

// A prefix code with one or two 8-bit symbols, written as a VP8L "simple code".
struct TwoSymbolCode {
    int low = 0;
    int high = 0;
    bool single() const { return low == high; }
    void writeHeader(BitWriter &bits) const
    {
        bits.write(1, 1); // simple code
        bits.write(single() ? 0 : 1, 1);
        bits.write(1, 1); // 8-bit symbols
        bits.write(quint32(low), 8);
        if (!single())
            bits.write(quint32(high), 8);
    }
    void writeSymbol(BitWriter &bits, int value) const
    {
        if (!single())
            bits.write(value == high ? 1 : 0, 1);
    }
};

TwoSymbolCode codeFor(int a, int b)
{
    return {std::min(a, b), std::max(a, b)};
}

bool insideShape(int kind, double x, double y)
{
    // x and y run from -1 to 1.
    switch (kind % 4) {
    case 0:
        return x * x + y * y < 0.8;
    case 1: { // heart
        const double yy = -y + 0.35;
        const double v = x * x + yy * yy - 0.45;
        return v * v * v - x * x * yy * yy * yy * 0.9 < 0;
    }
    case 2: { // star
        const double angle = std::atan2(y, x);
        const double radius = std::sqrt(x * x + y * y);
        return radius < 0.45 + 0.4 * std::pow(std::abs(std::cos(2.5 * angle)), 3);
    }
    default: // rounded square
        return std::pow(std::abs(x), 4) + std::pow(std::abs(y), 4) < 0.45;
    }
}

} // namespace

QByteArray photo(int seed, int width, int height, bool png)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, hueColor(seed, 200, 120, 250));
    sky.setColorAt(1, hueColor(seed, 20, 90, 255));
    painter.fillRect(image.rect(), sky);
    painter.setPen(Qt::NoPen);
    painter.setBrush(hueColor(seed, 40, 60, 255));
    const double sun = std::min(width, height) * 0.12;
    painter.drawEllipse(QPointF(width * (0.2 + (seed % 7) * 0.09), height * 0.3), sun, sun);
    for (int layer = 0; layer < 3; ++layer) {
        QPainterPath hills;
        hills.moveTo(0, height);
        const int peaks = 3 + (seed + layer) % 4;
        for (int i = 0; i <= peaks; ++i) {
            const double x = width * i / double(peaks);
            const double y = height * (0.45 + 0.12 * layer + 0.1 * std::sin(seed * 1.7 + i * 2.1 + layer));
            hills.lineTo(x, y);
        }
        hills.lineTo(width, height);
        painter.setBrush(hueColor(seed, 120 + layer * 25, 110, 150 - layer * 35));
        painter.drawPath(hills);
    }
    painter.end();
    return encode(image, png);
}

QByteArray avatar(int seed, int size)
{
    QImage image(size, size, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QRadialGradient gradient(size * 0.3, size * 0.3, size);
    gradient.setColorAt(0, hueColor(seed, 0, 120, 255));
    gradient.setColorAt(1, hueColor(seed, 40, 200, 160));
    painter.fillRect(image.rect(), gradient);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(255, 255, 255, 200));
    painter.drawEllipse(QPointF(size * 0.5, size * 0.4), size * 0.18, size * 0.18);
    painter.drawEllipse(QPointF(size * 0.5, size * 0.95), size * 0.33, size * 0.3);
    painter.end();
    return encode(image, false);
}

QByteArray webpSticker(int seed, int size)
{
    const QColor fill = hueColor(seed, 0, 200, 240);
    const QColor border = hueColor(seed, 0, 230, 120);
    const TwoSymbolCode green = codeFor(fill.green(), border.green());
    const TwoSymbolCode red = codeFor(fill.red(), border.red());
    const TwoSymbolCode blue = codeFor(fill.blue(), border.blue());
    const TwoSymbolCode alpha = codeFor(0, 255);
    BitWriter bits;
    bits.write(0x2f, 8);
    bits.write(quint32(size - 1), 14);
    bits.write(quint32(size - 1), 14);
    bits.write(1, 1); // alpha is used
    bits.write(0, 3); // version
    bits.write(0, 1); // no transform
    bits.write(0, 1); // no colour cache
    bits.write(0, 1); // no meta prefix codes
    green.writeHeader(bits);
    red.writeHeader(bits);
    blue.writeHeader(bits);
    alpha.writeHeader(bits);
    TwoSymbolCode{0, 0}.writeHeader(bits); // distance codes, unused
    for (int py = 0; py < size; ++py) {
        for (int px = 0; px < size; ++px) {
            const double x = (px + 0.5) * 2.0 / size - 1.0;
            const double y = (py + 0.5) * 2.0 / size - 1.0;
            const bool outer = insideShape(seed, x, y);
            const bool inner = insideShape(seed, x * 1.12, y * 1.12);
            const QColor &colour = inner ? fill : border;
            green.writeSymbol(bits, colour.green());
            red.writeSymbol(bits, colour.red());
            blue.writeSymbol(bits, colour.blue());
            alpha.writeSymbol(bits, outer ? 255 : 0);
        }
    }
    QByteArray data = bits.finish();
    QByteArray out("RIFF");
    const quint32 chunk = quint32(data.size());
    appendLE(out, 4 + 8 + chunk + (chunk & 1), 4);
    out.append("WEBPVP8L");
    appendLE(out, chunk, 4);
    out.append(data);
    if (chunk & 1)
        out.append('\0');
    return out;
}

QByteArray tgsSticker(int seed)
{
    const QColor colour = hueColor(seed, 0, 200, 240);
    const QString fill =
        u"%1,%2,%3,1"_s.arg(colour.redF(), 0, 'f', 3).arg(colour.greenF(), 0, 'f', 3).arg(colour.blueF(), 0, 'f', 3);
    const QString ease = u"\"i\":{\"x\":[0.5],\"y\":[0.5]},\"o\":{\"x\":[0.5],\"y\":[0.5]}"_s;
    const int lift = 40 + (seed % 5) * 15;
    const QString transform =
        u"{\"o\":{\"a\":0,\"k\":100},"
        "\"r\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[-10],%1},{\"t\":30,\"s\":[10],%1},{\"t\":60,\"s\":[-10]}]},"
        "\"p\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[256,300,0],%1},{\"t\":30,\"s\":[256,%2,0],%1},{\"t\":60,\"s\":[256,300,"
        "0]}]},"
        "\"a\":{\"a\":0,\"k\":[0,0,0]},"
        "\"s\":{\"a\":1,\"k\":[{\"t\":0,\"s\":[100,100,100],%1},{\"t\":30,\"s\":[112,92,100],%1},{\"t\":60,\"s\":[100,100,100]}]}}"_s
            .arg(ease)
            .arg(300 - lift);
    const QString group = u"{\"ty\":\"gr\",\"it\":["
                          "{\"ty\":\"el\",\"p\":{\"a\":0,\"k\":[%1,%2]},\"s\":{\"a\":0,\"k\":[%3,%3]},\"d\":1},"
                          "{\"ty\":\"fl\",\"c\":{\"a\":0,\"k\":[%4]},\"o\":{\"a\":0,\"k\":100},\"r\":1},"
                          "{\"ty\":\"tr\",\"p\":{\"a\":0,\"k\":[0,0]},\"a\":{\"a\":0,\"k\":[0,0]},"
                          "\"s\":{\"a\":0,\"k\":[100,100]},\"r\":{\"a\":0,\"k\":0},\"o\":{\"a\":0,\"k\":100}}]}"_s;
    const QString shapes = group.arg(-45).arg(-30).arg(36).arg(u"0.1,0.1,0.1,1"_s) + u',' +
                           group.arg(45).arg(-30).arg(36).arg(u"0.1,0.1,0.1,1"_s) + u',' +
                           group.arg(0).arg(0).arg(240).arg(fill);
    const QString json = u"{\"tgs\":1,\"v\":\"5.5.2\",\"fr\":60,\"ip\":0,\"op\":60,\"w\":512,\"h\":512,"
                         "\"nm\":\"demo %1\",\"ddd\":0,\"assets\":[],\"layers\":[{\"ddd\":0,\"ind\":1,\"ty\":4,"
                         "\"nm\":\"body\",\"sr\":1,\"ks\":%2,\"ao\":0,\"shapes\":[%3],\"ip\":0,\"op\":60,\"st\":0,"
                         "\"bm\":0}]}"_s.arg(seed)
                             .arg(transform, shapes);
    return gzip(json.toUtf8());
}

QByteArray gifAnimation(int seed, int width, int height)
{
    QByteArray out("GIF89a");
    appendLE(out, quint32(width), 2);
    appendLE(out, quint32(height), 2);
    out.append(char(0xF7)); // global colour table of 256 entries
    out.append('\0');
    out.append('\0');
    for (int i = 0; i < 256; ++i) {
        const QColor c = i < 128 ? hueColor(seed, i, 90, 120 + i) : hueColor(seed, 180, 220, 255);
        out.append(char(c.red())).append(char(c.green())).append(char(c.blue()));
    }
    out.append("\x21\xFF\x0BNETSCAPE2.0\x03\x01\x00\x00\x00", 19);
    const int frames = 10;
    for (int frame = 0; frame < frames; ++frame) {
        out.append("\x21\xF9\x04\x00", 4);
        appendLE(out, 8, 2); // 80 ms
        out.append("\x00\x00", 2);
        out.append(char(0x2C));
        appendLE(out, 0, 4);
        appendLE(out, quint32(width), 2);
        appendLE(out, quint32(height), 2);
        out.append('\0');
        out.append(char(8)); // minimum code size
        // Uncompressed LZW: only literal codes, with a clear code often enough that
        // the code size stays at 9 bits.
        BitWriter bits;
        const double angle = 2 * M_PI * frame / frames;
        const double cx = width * (0.5 + 0.3 * std::cos(angle)), cy = height * (0.5 + 0.3 * std::sin(angle));
        const double radius = std::min(width, height) * 0.15;
        int sinceClear = 250;
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                if (sinceClear == 250) {
                    bits.write(256, 9);
                    sinceClear = 0;
                }
                const bool ball = (x - cx) * (x - cx) + (y - cy) * (y - cy) < radius * radius;
                bits.write(ball ? 200 : quint32(y * 127 / height), 9);
                ++sinceClear;
            }
        }
        bits.write(257, 9);
        const QByteArray data = bits.finish();
        for (qsizetype at = 0; at < data.size(); at += 255) {
            const qsizetype length = std::min<qsizetype>(255, data.size() - at);
            out.append(char(length));
            out.append(data.mid(at, length));
        }
        out.append('\0');
    }
    out.append(char(0x3B));
    return out;
}

QByteArray wavSound(int seed, int seconds)
{
    const int rate = 8000;
    const int samples = rate * seconds;
    QByteArray out("RIFF");
    appendLE(out, quint32(36 + samples * 2), 4);
    out.append("WAVEfmt ");
    appendLE(out, 16, 4);
    appendLE(out, 1, 2); // PCM
    appendLE(out, 1, 2); // mono
    appendLE(out, rate, 4);
    appendLE(out, rate * 2, 4);
    appendLE(out, 2, 2);
    appendLE(out, 16, 2);
    out.append("data");
    appendLE(out, quint32(samples * 2), 4);
    const double notes[] = {261.6, 293.7, 329.6, 349.2, 392.0, 440.0, 493.9, 523.3};
    for (int i = 0; i < samples; ++i) {
        const int note = (i / (rate / 4) + seed) % 8;
        const double envelope = 1.0 - double(i % (rate / 4)) / (rate / 4);
        const double value = std::sin(2 * M_PI * notes[note] * i / rate) * envelope * 9000;
        appendLE(out, quint32(qint16(value)) & 0xffff, 2);
    }
    return out;
}

QByteArray pdfDocument(const QString &title)
{
    QByteArray safeTitle = title.toLatin1();
    safeTitle.replace('(', ' ').replace(')', ' ').replace('\\', ' ');
    QByteArray content = "BT /F1 28 Tf 72 740 Td (" + safeTitle +
                         ") Tj ET\nBT /F1 14 Tf 72 700 Td (A document of the Vost demo account.) Tj ET\n"
                         "0.2 0.5 0.9 rg 72 400 451 200 re f\n0 0 0 rg\n";
    // A page of text, so that the file is of a document's usual size (a few kB).
    for (int line = 0; line < 20; ++line)
        content += "BT /F1 10 Tf 72 " + QByteArray::number(380 - line * 14) + " Td (Day " +
                   QByteArray::number(line / 4 + 1) + ", item " + QByteArray::number(line % 4 + 1) +
                   ": departure, arrival, the hotel and the plans for the evening.) Tj ET\n";
    const QByteArray objects[] = {
        "<< /Type /Catalog /Pages 2 0 R >>",
        "<< /Type /Pages /Kids [3 0 R] /Count 1 >>",
        "<< /Type /Page /Parent 2 0 R /MediaBox [0 0 595 842] /Resources << /Font << /F1 5 0 R >> >> "
        "/Contents 4 0 R >>",
        "<< /Length " + QByteArray::number(content.size()) + " >>\nstream\n" + content + "endstream",
        "<< /Type /Font /Subtype /Type1 /BaseFont /Helvetica >>",
    };
    QByteArray out("%PDF-1.4\n");
    QList<qsizetype> offsets;
    int number = 1;
    for (const QByteArray &body : objects) {
        offsets.append(out.size());
        out += QByteArray::number(number++) + " 0 obj\n" + body + "\nendobj\n";
    }
    const qsizetype xref = out.size();
    out += "xref\n0 " + QByteArray::number(offsets.size() + 1) + "\n0000000000 65535 f \n";
    for (qsizetype offset : offsets)
        out += QByteArray::number(offset).rightJustified(10, '0') + " 00000 n \n";
    out += "trailer\n<< /Size " + QByteArray::number(offsets.size() + 1) + " /Root 1 0 R >>\nstartxref\n" +
           QByteArray::number(xref) + "\n%%EOF\n";
    return out;
}

QByteArray textDocument(const QString &title)
{
    return (title + u"\n\n- buy milk\n- finish the slides\n- call Emma about Friday\n"_s).toUtf8();
}

} // namespace demo::media
