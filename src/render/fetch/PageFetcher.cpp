#include "PageFetcher.h"

#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>

namespace {

const char *const cutOffProperty = "vostCutOff";

// A reply the server answered (with any status) is reached.
bool wasReached(QNetworkReply *reply)
{
    if (reply->property(cutOffProperty).toBool())
        return false;
    return reply->error() == QNetworkReply::NoError ||
           reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
}

} // namespace

void PageFetcher::fetch(const PageFetchProtocol::Request &request, Completion completion)
{
    // Previews describe web pages: a hostile page's picture address must not read
    // local files or resources.
    const QString scheme = request.url.scheme();
    if (scheme != u"http" && scheme != u"https") {
        QMetaObject::invokeMethod(
            this,
            [id = request.id, completion = std::move(completion)] { completion(PageFetchProtocol::notReached(id)); },
            Qt::QueuedConnection);
        return;
    }
    QNetworkRequest networkRequest(request.url);
    networkRequest.setTransferTimeout(request.timeoutMs);
    networkRequest.setMaximumRedirectsAllowed(maximumRedirects);
    if (request.browserIdentity)
        networkRequest.setHeader(QNetworkRequest::UserAgentHeader, browserUserAgent);
    QNetworkReply *reply = m_manager.get(networkRequest);
    // The transfer time-out only notices silence: a server that sends a byte now and
    // then, or never stops sending, is cut off by a deadline and a size limit.
    auto cutOff = [reply] {
        reply->setProperty(cutOffProperty, true);
        reply->abort();
    };
    auto *deadline = new QTimer(reply);
    deadline->setSingleShot(true);
    connect(deadline, &QTimer::timeout, reply, cutOff);
    deadline->start(request.timeoutMs);
    // Counted after decompression, so a small compressed bomb is stopped as well.
    connect(reply, &QIODevice::readyRead, reply, [reply, cutOff] {
        if (reply->bytesAvailable() > PageFetchProtocol::maximumBodyBytes)
            cutOff();
    });
    connect(reply, &QNetworkReply::finished, this, [reply, id = request.id, completion = std::move(completion)] {
        reply->deleteLater();
        PageFetchProtocol::Answer answer = PageFetchProtocol::notReached(id);
        answer.reached = wasReached(reply);
        if (answer.reached) {
            const QVariant status = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
            if (status.isValid())
                answer.status = status.toInt();
            const QString type = reply->header(QNetworkRequest::ContentTypeHeader).toString();
            answer.mimeType = type.section(u';', 0, 0).trimmed().toLower();
            answer.body = reply->readAll();
        }
        completion(answer);
    });
}
