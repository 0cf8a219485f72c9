#pragma once

#include "render/PageFetchProtocol.h"

#include <QNetworkAccessManager>
#include <QObject>

#include <functional>

// Fetches what link previews ask for, with the bounds every fetch keeps: a time-out
// for silence, a deadline for the whole answer, a size limit after decompression
// and a limit on redirects. What was cut off counts as not reached.
class PageFetcher : public QObject
{
    Q_OBJECT

public:
    static constexpr int maximumRedirects = 10;
    static inline const QByteArray browserUserAgent =
        QByteArrayLiteral("Mozilla/5.0 (Macintosh; Intel Mac OS X 10_15_7) AppleWebKit/605.1.15 Safari/605.1.15");

    using Completion = std::function<void(const PageFetchProtocol::Answer &)>;
    void fetch(const PageFetchProtocol::Request &request, Completion completion);

private:
    QNetworkAccessManager m_manager;
};
