#include "Attachments.h"

#include <QFile>
#include <QFileInfo>
#include <QImageReader>
#include <QUrl>

using namespace Qt::StringLiterals;

std::optional<Attachments::Refusal> Attachments::refusal(const QString &path)
{
    const QFileInfo info(path);
    if (info.isDir())
        return Refusal::Folder;
    // A pipe or a device is no file to upload (and opening a pipe would wait for a writer).
    if (!info.exists() || !info.isFile() || !info.isReadable())
        return Refusal::Unreadable;
    if (info.size() == 0)
        return Refusal::Empty;
    if (info.size() > maximumFileSize)
        return Refusal::TooLarge;
    // The permission bits do not tell everything (access lists, a vanished mount):
    // what cannot be opened now cannot be uploaded later either.
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Refusal::Unreadable;
    char first = 0;
    if (file.read(&first, 1) != 1)
        return Refusal::Unreadable;
    return std::nullopt;
}

bool Attachments::isPhotoImage(const QString &path)
{
    // By content only: a text file named "fake.png" is no picture.
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        return false;
    static const QList<QByteArray> stillFormats{"jpeg", "jpg", "png", "webp", "bmp", "tiff", "tif", "heif", "heic"};
    if (!stillFormats.contains(reader.format()))
        return false;
    // A damaged picture may pass the header test; without a size it does not decode.
    return reader.size().isValid() && !reader.size().isEmpty();
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
