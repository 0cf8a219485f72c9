#include "PageFetchProtocol.h"

#include <QCborMap>
#include <QCborValue>

#include <limits>

namespace PageFetchProtocol {

namespace {

// A request carries "url"; an answer never does.
const QString idKey = QStringLiteral("id");
const QString urlKey = QStringLiteral("url");
const QString timeoutKey = QStringLiteral("timeout");
const QString browserKey = QStringLiteral("browser");
const QString reachedKey = QStringLiteral("reached");
const QString statusKey = QStringLiteral("status");
const QString typeKey = QStringLiteral("type");
const QString bodyKey = QStringLiteral("body");

QByteArray framed(const QCborMap &map)
{
    return MessageFraming::frame(map.toCborValue().toCbor());
}

std::optional<quint32> identifier(const QCborMap &map)
{
    const QCborValue id = map.value(idKey);
    if (!id.isInteger() || id.toInteger() < 0 || id.toInteger() > std::numeric_limits<quint32>::max())
        return std::nullopt;
    return quint32(id.toInteger());
}

std::optional<Message> decodeMap(const QCborMap &map)
{
    const std::optional<quint32> id = identifier(map);
    if (!id)
        return std::nullopt;
    if (map.contains(urlKey)) {
        const QCborValue url = map.value(urlKey);
        const QCborValue timeout = map.value(timeoutKey);
        const QCborValue browser = map.value(browserKey);
        if (!url.isString() || !timeout.isInteger() || timeout.toInteger() < 0 ||
            timeout.toInteger() > std::numeric_limits<int>::max() || !browser.isBool())
            return std::nullopt;
        const QUrl parsed(url.toString(), QUrl::StrictMode);
        if (!parsed.isValid())
            return std::nullopt;
        return Request{*id, parsed, int(timeout.toInteger()), browser.toBool()};
    }
    const QCborValue reached = map.value(reachedKey);
    const QCborValue status = map.value(statusKey);
    const QCborValue type = map.value(typeKey);
    const QCborValue body = map.value(bodyKey);
    if (!reached.isBool() || !(status.isUndefined() || status.isInteger()) || !type.isString() || !body.isByteArray())
        return std::nullopt;
    Answer answer{*id, reached.toBool(), std::nullopt, type.toString(), body.toByteArray()};
    if (status.isInteger()) {
        if (status.toInteger() < 0 || status.toInteger() > 999)
            return std::nullopt;
        answer.status = int(status.toInteger());
    }
    return answer;
}

} // namespace

bool isWellFormed(const Request &request)
{
    // As the fetcher will read the address.
    return request.timeoutMs >= 0 && QUrl(request.url.toString(QUrl::FullyEncoded), QUrl::StrictMode).isValid();
}

QByteArray encode(const Request &request)
{
    QCborMap map;
    map.insert(idKey, qint64(request.id));
    map.insert(urlKey, request.url.toString(QUrl::FullyEncoded));
    map.insert(timeoutKey, request.timeoutMs);
    map.insert(browserKey, request.browserIdentity);
    return framed(map);
}

QByteArray encode(const Answer &answer)
{
    QCborMap map;
    map.insert(idKey, qint64(answer.id));
    map.insert(reachedKey, answer.reached);
    if (answer.status)
        map.insert(statusKey, *answer.status);
    map.insert(typeKey, answer.mimeType);
    map.insert(bodyKey, answer.body);
    return framed(map);
}

std::optional<Message> decode(const QByteArray &body)
{
    QCborParserError error;
    const QCborValue value = QCborValue::fromCbor(body, &error);
    if (error.error != QCborError::NoError || !value.isMap())
        return std::nullopt;
    return decodeMap(value.toMap());
}

} // namespace PageFetchProtocol
