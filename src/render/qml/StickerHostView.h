#pragma once

#include "render/StickerHostProtocol.h"

#include <QHash>
#include <QImage>
#include <QJSValue>
#include <QQuickItem>
#include <QtQml/qqmlregistration.h>

// Shows a page played by the sticker host: the page is handed over with show(),
// and the frames the host draws come back and are shown at this item's size.
class StickerHostView : public QQuickItem
{
    Q_OBJECT
    QML_ELEMENT
    // How far the page got, as the host found it (StickerPage::PlayState).
    Q_PROPERTY(int playState READ playState NOTIFY playStateChanged)
    // How many frames have come; 0 until the first is there.
    Q_PROPERTY(int frameCount READ frameCount NOTIFY frameCountChanged)

public:
    explicit StickerHostView(QQuickItem *parent = nullptr);
    ~StickerHostView() override;

    // Loads the page; the host starts if it does not run.
    Q_INVOKABLE void show(const QString &page);
    // Runs a script in the page (for inspection); the callback gets its result.
    Q_INVOKABLE void runJavaScript(const QString &script, const QJSValue &callback);

    int playState() const { return m_playState; }
    int frameCount() const { return m_frameCount; }

    // From the host, through StickerHostClient.
    void receive(const StickerHostProtocol::Message &message);
    void hostLost();

Q_SIGNALS:
    void playStateChanged();
    void frameCountChanged();
    void pageLoaded();
    // The host ended while this view used it: the page plays no more.
    void pageLost();

protected:
    QSGNode *updatePaintNode(QSGNode *node, UpdatePaintNodeData *data) override;
    void geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry) override;
    void itemChange(ItemChange change, const ItemChangeData &value) override;
    void releaseResources() override;

private:
    QSize pixelSize() const;
    double devicePixelRatio() const;
    void sendSize();
    void setPlayState(int state);

    quint32 m_id = 0;
    bool m_shown = false; // the host has a page for this view
    QSize m_sentSize;
    QImage m_frame;
    bool m_frameChanged = false;
    int m_frameCount = 0;
    int m_playState = 0; // StickerPage::PlayState::Loading
    quint32 m_nextRequest = 1;
    QHash<quint32, QJSValue> m_pendingScripts;
};
