#include "Clipboard.h"

#include <QClipboard>
#include <QDateTime>
#include <QDir>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QStandardPaths>
#include <QUuid>

using namespace Qt::StringLiterals;

namespace {

QString pastedFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::CacheLocation) + u"/pasted"_s;
}

} // namespace

Clipboard::Clipboard(QObject *parent)
    : QObject(parent)
{}

void Clipboard::copyText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}

bool Clipboard::hasImage()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    return data && data->hasImage();
}

QString Clipboard::saveImage()
{
    const QImage image = qvariant_cast<QImage>(QGuiApplication::clipboard()->mimeData()->imageData());
    if (image.isNull())
        return {};
    QDir folder(pastedFolder());
    if (!folder.mkpath(u"."_s))
        return {};
    // Sent pictures are uploaded from here, so they stay a while, not for ever.
    const QDateTime dayAgo = QDateTime::currentDateTime().addDays(-1);
    for (const QFileInfo &old : folder.entryInfoList(QDir::Files)) {
        if (old.lastModified() < dayAgo)
            QFile::remove(old.absoluteFilePath());
    }
    const QString path = folder.filePath(
        //: The file name of a pasted image; %1 is a short random code.
        QCoreApplication::translate("Clipboard", "Pasted image %1.png")
            .arg(QUuid::createUuid().toString(QUuid::WithoutBraces).left(8)));
    return image.save(path, "PNG") ? path : QString();
}
