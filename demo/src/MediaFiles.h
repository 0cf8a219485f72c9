#pragma once

#include <QByteArray>
#include <QString>

// The demo account's media, drawn by our own code: photos and avatars (JPEG or
// PNG), two-colour lossless WebP stickers, gzip-compressed Lottie (.tgs) stickers,
// animated GIFs, WAV sounds, a small PDF and a text file.
namespace demo::media {

QByteArray photo(int seed, int width, int height, bool png);
QByteArray avatar(int seed, int size);
QByteArray webpSticker(int seed, int size);
QByteArray tgsSticker(int seed);
QByteArray gifAnimation(int seed, int width, int height);
QByteArray wavSound(int seed, int seconds);
QByteArray pdfDocument(const QString &title);
QByteArray textDocument(const QString &title);

} // namespace demo::media
