#pragma once

#include <QByteArray>

// Pictures in messages are other people's files: only raster formats are drawn as
// pictures. Qt's SVG reader is here for the application's own symbols, not for
// documents from strangers, so an SVG in a message stays a document.
inline bool isMessagePictureFormat(const QByteArray &format)
{
    return !format.isEmpty() && format != "svg" && format != "svgz";
}
