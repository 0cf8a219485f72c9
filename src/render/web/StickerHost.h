#pragma once

#include "render/StickerHostProtocol.h"

#include <QObject>
#include <QQmlComponent>
#include <QQmlEngine>

#include <map>
#include <memory>
#include <vector>

class QLocalSocket;
class QQuickWebEngineProfile;
class StickerHostPage;

// The sticker host's side of the conversation with Vost, over the local socket
// Vost listens on: commands come in, frames and answers go out. (Not the standard
// streams: the web engine hands low descriptors to channels of its own.) It quits
// when the connection ends (Vost let it go, or is gone) or when Vost sends what it
// cannot read.
class StickerHost : public QObject
{
    Q_OBJECT

public:
    explicit StickerHost(const QString &serverName);
    ~StickerHost() override;

private:
    void readCommands();
    void handle(const StickerHostProtocol::Message &message);
    // A waiting page, or a new one, now serving the view.
    StickerHostPage *pageFor(quint32 view);
    void send(const StickerHostProtocol::Message &message);

    QQmlEngine m_engine;
    QQmlComponent m_viewComponent;
    QQuickWebEngineProfile *m_profile = nullptr;
    // Every page made; those serving no view wait to be used again.
    std::vector<std::unique_ptr<StickerHostPage>> m_pages;
    std::map<quint32, StickerHostPage *> m_serving;
    StickerHostProtocol::Reader m_reader;
    QLocalSocket *m_connection = nullptr;
};
