#include "StickerHostView.h"

#include "StickerHostClient.h"
#include "render/StickerPage.h"
#include "session/ChangedValue.h"

#include <QJSEngine>
#include <QQuickWindow>
#include <QSGImageNode>

using StickerHostProtocol::Kind;
// The model's Message is another record.
using HostMessage = StickerHostProtocol::Message;

StickerHostView::StickerHostView(QQuickItem *parent)
    : QQuickItem(parent)
    , m_id(StickerHostClient::instance().attach(this))
{
    setFlag(ItemHasContents);
}

StickerHostView::~StickerHostView()
{
    StickerHostClient::instance().detach(m_id);
}

void StickerHostView::show(const QString &page)
{
    HostMessage message(Kind::Show, m_id);
    message.size = pixelSize();
    message.devicePixelRatio = devicePixelRatio();
    message.text = page;
    m_sentSize = message.size;
    m_shown = true;
    setPlayState(int(StickerPage::PlayState::Loading));
    StickerHostClient::instance().send(message);
    // No host could be started (it is missing, or will not run): the page cannot play.
    if (!StickerHostClient::instance().isRunning())
        hostLost();
}

void StickerHostView::setPlayState(int state)
{
    if (assignChanged(m_playState, state))
        Q_EMIT playStateChanged();
}

void StickerHostView::runJavaScript(const QString &script, const QJSValue &callback)
{
    if (!m_shown)
        return;
    HostMessage message(Kind::Run, m_id);
    message.request = m_nextRequest++;
    message.text = script;
    m_pendingScripts.insert(message.request, callback);
    StickerHostClient::instance().send(message);
}

void StickerHostView::receive(const HostMessage &message)
{
    switch (message.kind) {
    case Kind::Loaded:
        if (message.succeeded)
            Q_EMIT pageLoaded();
        break;
    case Kind::PlayState:
        setPlayState(int(StickerPage::playStateFromProbe(message.text)));
        break;
    case Kind::Frame:
        m_frame = message.frame;
        m_frameChanged = true;
        ++m_frameCount;
        update();
        Q_EMIT frameCountChanged();
        StickerHostClient::instance().send(HostMessage(Kind::Acknowledge, m_id));
        break;
    case Kind::Result: {
        QJSValue callback = m_pendingScripts.take(message.request);
        if (QJSEngine *engine = qjsEngine(this); engine && callback.isCallable())
            callback.call({engine->toScriptValue(message.result)});
        break;
    }
    default:
        break;
    }
}

void StickerHostView::hostLost()
{
    if (!m_shown)
        return;
    m_shown = false;
    m_pendingScripts.clear();
    Q_EMIT pageLost();
}

QSGNode *StickerHostView::updatePaintNode(QSGNode *node, UpdatePaintNodeData *)
{
    auto *imageNode = static_cast<QSGImageNode *>(node);
    if (m_frame.isNull() || !window()) {
        delete imageNode;
        return nullptr;
    }
    if (!imageNode) {
        imageNode = window()->createImageNode();
        imageNode->setOwnsTexture(true);
        imageNode->setFiltering(QSGTexture::Linear);
        m_frameChanged = true;
    }
    if (m_frameChanged) {
        imageNode->setTexture(window()->createTextureFromImage(m_frame, QQuickWindow::TextureHasAlphaChannel));
        m_frameChanged = false;
    }
    imageNode->setRect(boundingRect());
    return imageNode;
}

void StickerHostView::geometryChange(const QRectF &newGeometry, const QRectF &oldGeometry)
{
    QQuickItem::geometryChange(newGeometry, oldGeometry);
    sendSize();
}

void StickerHostView::itemChange(ItemChange change, const ItemChangeData &value)
{
    QQuickItem::itemChange(change, value);
    if (change == ItemSceneChange || change == ItemDevicePixelRatioHasChanged)
        sendSize();
}

// The window's textures go with it; the last frame stays to be shown again.
void StickerHostView::releaseResources()
{
    m_frameChanged = true;
}

QSize StickerHostView::pixelSize() const
{
    return (size() * devicePixelRatio()).toSize();
}

double StickerHostView::devicePixelRatio() const
{
    return window() ? window()->effectiveDevicePixelRatio() : 1.0;
}

void StickerHostView::sendSize()
{
    if (!m_shown || pixelSize() == m_sentSize || !StickerHostClient::instance().isRunning())
        return;
    HostMessage message(Kind::Resize, m_id);
    message.size = pixelSize();
    message.devicePixelRatio = devicePixelRatio();
    m_sentSize = message.size;
    StickerHostClient::instance().send(message);
}
