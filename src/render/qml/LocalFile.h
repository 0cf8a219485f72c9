#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>

// File URLs for local paths, so that QML never builds "file://" by hand (a path
// with "#" or "%" would break).
class LocalFile : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit LocalFile(QObject *parent = nullptr)
        : QObject(parent)
    {}

    // An empty URL for an empty path.
    Q_INVOKABLE static QUrl url(const QString &path) { return path.isEmpty() ? QUrl() : QUrl::fromLocalFile(path); }
};
