#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// The desktop's clipboard for the views: copying a message's text, and a picture
// pasted into the composer, which is kept as a PNG file in the cache so that it can
// be sent like a picked one.
class Clipboard : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Clipboard(QObject *parent = nullptr);

    Q_INVOKABLE static void copyText(const QString &text);
    Q_INVOKABLE static bool hasImage();
    // The clipboard's picture saved as a PNG file; "" when there is none or it
    // cannot be written. Pasted pictures older than a day are removed first.
    Q_INVOKABLE static QString saveImage();
};
