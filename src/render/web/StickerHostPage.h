#pragma once

#include "render/StickerHostProtocol.h"

#include <QElapsedTimer>
#include <QImage>
#include <QObject>
#include <QQuickRenderControl>
#include <QTimer>

#include <memory>

class QQmlComponent;
class QQuickItem;
class QQuickWindow;

// One sticker page in the host: a web view in a window that is never shown, drawn
// by the software renderer into an image with an alpha channel. A frame is drawn
// when the page changed, at most 30 a second (video stickers play at 30), and only
// once the previous one has been taken. A page serves one view at a time; when
// the view leaves, the page goes blank and waits for the next (a web view is not
// torn down safely while the engine runs).
class StickerHostPage : public QObject
{
    Q_OBJECT

public:
    StickerHostPage(QQmlComponent &view, QObject *profile);
    ~StickerHostPage() override;

    bool isValid() const { return m_view != nullptr; }
    // The view it serves; 0 while it waits.
    quint32 id() const { return m_id; }
    void serve(quint32 id);
    // Blank, silent and still until it serves again.
    void release();
    void show(const QString &page);
    void resize(QSize pixelSize, double devicePixelRatio);
    void run(quint32 request, const QString &script);
    void acknowledge();

Q_SIGNALS:
    void send(const StickerHostProtocol::Message &message);

private Q_SLOTS:
    void onPageLoaded(bool succeeded);
    void onProbed(const QVariant &answer);
    void onScriptAnswered(int request, const QVariant &result);

private:
    void scheduleFrame();
    void drawFrame();
    void probe();
    void stopProbing();

    quint32 m_id = 0;
    // The image is the window's render target, so it outlives the window.
    QImage m_image;
    QQuickRenderControl m_control;
    std::unique_ptr<QQuickWindow> m_window;
    QQuickItem *m_view = nullptr;
    QTimer m_pace;
    QTimer m_probe;
    int m_probesLeft = 0;
    bool m_probing = false; // from a page's load until its state is known
    QElapsedTimer m_sinceFrame;
    bool m_awaitingAcknowledge = false;
    bool m_changed = false;
};
