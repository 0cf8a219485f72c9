#include "session/SendRequest.h"

#include "session/ContentTexts.h"

using namespace Qt::StringLiterals;

void requestDownload(const SendRequest &send, qint64 fileID)
{
    // A sync asks for thousands of avatars: the fixed fields are made once.
    static const TdObject fixed{{"priority"_L1, 1}, {"offset"_L1, 0}, {"limit"_L1, 0}, {"synchronous"_L1, false}};
    TdObject request = fixed;
    request.insert("file_id"_L1, fileID);
    send(u"downloadFile"_s, request);
}

std::optional<QString> prepareAvatar(const SendRequest &send, const QJsonValue &photo,
                                     const std::function<void(qint64)> &recordOwner)
{
    const TdObject file = photo.toObject().value("small"_L1).toObject();
    if (const auto path = completedPath(file))
        return path;
    if (const auto fileID = int64From(file.value("id"_L1))) {
        recordOwner(*fileID);
        requestDownload(send, *fileID);
    }
    return std::nullopt;
}
