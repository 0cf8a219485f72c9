#pragma once

#include "tdlib/TdJson.h"

#include <QString>

#include <functional>
#include <optional>

// How a store sends one request to TDLib: the type and the fields without "@type".
using SendRequest = std::function<void(const QString &type, const TdObject &fields)>;

// Asks TDLib for a file that is shown (an avatar, a sticker, a message's media).
void requestDownload(const SendRequest &send, qint64 fileID);

// An avatar's path when its small photo is here; otherwise the photo's file is
// handed to recordOwner and asked for.
std::optional<QString> prepareAvatar(const SendRequest &send, const QJsonValue &photo,
                                     const std::function<void(qint64)> &recordOwner);
