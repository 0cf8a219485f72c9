#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <QtWebEngineQuick/QQuickWebEngineProfile>

class QQmlEngine;
class QJSEngine;

// The one off-the-record profile of every sticker view: nothing reaches the disk.
// It is made when the first sticker page is about to be shown.
class StickerWebProfile : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(QQuickWebEngineProfile *profile READ profile CONSTANT)

public:
    explicit StickerWebProfile(QObject *parent = nullptr)
        : QObject(parent)
    {}

    static QQuickWebEngineProfile *sharedProfile();

    QQuickWebEngineProfile *profile() const { return sharedProfile(); }
};
