#pragma once

#include <QQuickImageProvider>

// "image://round/<file path>": the picture cropped to fill a square and cut to a
// circle, for avatars (Qt Quick has no mask without extra modules).
class RoundImageProvider : public QQuickImageProvider
{
public:
    static constexpr auto name = "round";

    RoundImageProvider();

    QImage requestImage(const QString &id, QSize *size, const QSize &requestedSize) override;
};
