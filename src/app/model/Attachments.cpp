#include "Attachments.h"

#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>

using namespace Qt::StringLiterals;

std::optional<Attachments::Refusal> Attachments::refusal(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return Refusal::Folder;
    if (!info.exists() || !info.isReadable())
        return Refusal::Unreadable;
    if (info.size() == 0)
        return Refusal::Empty;
    if (info.size() > maximumFileSize)
        return Refusal::TooLarge;
    return std::nullopt;
}

bool Attachments::isPhotoImage(const QString &path)
{
    static const QStringList photoTypes{u"image/jpeg"_s, u"image/png"_s, u"image/webp"_s, u"image/bmp"_s,
                                        u"image/tiff"_s, u"image/heif"_s, u"image/heic"_s};
    const QMimeType type = QMimeDatabase().mimeTypeForFile(path);
    return std::any_of(photoTypes.cbegin(), photoTypes.cend(),
                       [&type](const QString &name) { return type.inherits(name); });
}

PendingAttachmentKind Attachments::kindFor(const QString &path)
{
    return isPhotoImage(path) && QFileInfo(path).size() <= maximumPhotoSize ? PendingAttachmentKind::Photo
                                                                             : PendingAttachmentKind::Document;
}

QString Attachments::localPath(const QString &pathOrUrl)
{
    if (!pathOrUrl.startsWith(u"file:"_s))
        return pathOrUrl.startsWith(u'/') ? pathOrUrl : QString();
    const QUrl url(pathOrUrl);
    return url.isLocalFile() ? url.toLocalFile() : QString();
}
