#pragma once

#include "render/StickerHostProtocol.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>

class QLocalServer;
class QLocalSocket;
class QProcess;
class StickerHostView;

// Vost's side of the sticker host, the helper process that plays video stickers.
// It starts the host when a view first has something to show and lets it go when
// the last view has been gone for a while (the host lingers a little, so that
// scrolling past a sticker does not restart it). When the host ends on its own
// (a crash), the views that used it are told so.
class StickerHostClient : public QObject
{
    Q_OBJECT

public:
    static StickerHostClient &instance();

    // A view joins, and gets the number its messages carry.
    quint32 attach(StickerHostView *view);
    // A view leaves; the host hears of it if it runs.
    void detach(quint32 view);
    // Starts the host if it does not run.
    void send(const StickerHostProtocol::Message &message);

    bool isRunning() const;
    qint64 processId() const;
    // How long the host stays once the last view has left.
    void setLingerInterval(std::chrono::milliseconds interval);

Q_SIGNALS:
    void runningChanged();

private:
    StickerHostClient();
    ~StickerHostClient() override;

    enum class Ending { Wait, InTheBackground };

    bool start();
    void stop(Ending ending);
    void acceptConnection();
    void readMessages();
    void onFinished();

    QHash<quint32, StickerHostView *> m_views;
    quint32 m_nextView = 1;
    QPointer<QProcess> m_process;
    // The host connects back to this server; until it has, what is sent waits.
    QPointer<QLocalServer> m_server;
    QPointer<QLocalSocket> m_connection;
    QByteArray m_unsent;
    StickerHostProtocol::Reader m_reader;
    QTimer m_linger;
};
