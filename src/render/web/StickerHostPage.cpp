#include "StickerHostPage.h"

#include "render/StickerPage.h"

#include <QQmlComponent>
#include <QQuickItem>
#include <QQuickRenderTarget>
#include <QQuickWindow>

using namespace Qt::StringLiterals;
using StickerHostProtocol::Kind;
using HostMessage = StickerHostProtocol::Message;

namespace {

constexpr int frameIntervalMs = 33;
// How often, and how many times, a loaded page is asked how far it got: a sticker
// that has neither played nor failed after that stays loading.
constexpr int probeIntervalMs = 50;
constexpr int maximumProbes = 200;

} // namespace

StickerHostPage::StickerHostPage(QQmlComponent &view, QObject *profile)
    : m_window(std::make_unique<QQuickWindow>(&m_control))
{
    m_window->setColor(Qt::transparent);
    QObject *object = view.createWithInitialProperties({{u"profile"_s, QVariant::fromValue(profile)}});
    m_view = qobject_cast<QQuickItem *>(object);
    if (!m_view) {
        qWarning().noquote() << "the sticker page's view cannot be made:" << view.errorString();
        delete object;
        return;
    }
    m_view->setParent(m_window.get());
    m_view->setParentItem(m_window->contentItem());
    connect(m_view, SIGNAL(pageLoaded(bool)), this, SLOT(onPageLoaded(bool)));
    connect(m_view, SIGNAL(probed(QVariant)), this, SLOT(onProbed(QVariant)));
    connect(m_view, SIGNAL(scriptAnswered(int, QVariant)), this, SLOT(onScriptAnswered(int, QVariant)));

    m_probe.setInterval(probeIntervalMs);
    connect(&m_probe, &QTimer::timeout, this, &StickerHostPage::probe);
    m_pace.setSingleShot(true);
    connect(&m_pace, &QTimer::timeout, this, &StickerHostPage::drawFrame);
    connect(&m_control, &QQuickRenderControl::renderRequested, this, &StickerHostPage::scheduleFrame);
    connect(&m_control, &QQuickRenderControl::sceneChanged, this, &StickerHostPage::scheduleFrame);
    resize(QSize(160, 160), 1);
}

// The view goes before the window it lives in.
StickerHostPage::~StickerHostPage()
{
    delete m_view;
}

void StickerHostPage::serve(quint32 id)
{
    m_id = id;
    m_awaitingAcknowledge = false;
    stopProbing();
    // Updates asked for while it waited were not drawn, and the window asks only once.
    scheduleFrame();
}

void StickerHostPage::release()
{
    m_id = 0;
    m_pace.stop();
    stopProbing();
    if (m_view)
        QMetaObject::invokeMethod(m_view, "clear");
}

void StickerHostPage::show(const QString &page)
{
    stopProbing();
    if (m_view)
        QMetaObject::invokeMethod(m_view, "show", Q_ARG(QVariant, page));
}

void StickerHostPage::resize(QSize pixelSize, double devicePixelRatio)
{
    pixelSize = pixelSize.expandedTo(QSize(1, 1));
    if (m_image.size() == pixelSize && qFuzzyCompare(m_image.devicePixelRatio(), devicePixelRatio))
        return;
    m_image = QImage(pixelSize, QImage::Format_ARGB32_Premultiplied);
    m_image.fill(Qt::transparent);
    m_image.setDevicePixelRatio(devicePixelRatio);
    QQuickRenderTarget target = QQuickRenderTarget::fromPaintDevice(&m_image);
    target.setDevicePixelRatio(devicePixelRatio);
    m_window->setRenderTarget(target);
    const QSizeF logical = QSizeF(pixelSize) / devicePixelRatio;
    m_window->resize(logical.toSize());
    m_window->contentItem()->setSize(logical);
    if (m_view)
        m_view->setSize(logical);
    scheduleFrame();
}

void StickerHostPage::run(quint32 request, const QString &script)
{
    if (m_view)
        QMetaObject::invokeMethod(m_view, "runScript", Q_ARG(QVariant, request), Q_ARG(QVariant, script));
}

void StickerHostPage::acknowledge()
{
    m_awaitingAcknowledge = false;
    if (m_changed)
        scheduleFrame();
}

void StickerHostPage::onPageLoaded(bool succeeded)
{
    if (m_id == 0)
        return;
    HostMessage message(Kind::Loaded, m_id);
    message.succeeded = succeeded;
    Q_EMIT send(message);
    if (succeeded) {
        m_probing = true;
        m_probesLeft = maximumProbes;
        probe();
        m_probe.start();
    }
}

void StickerHostPage::probe()
{
    if (--m_probesLeft < 0 || !m_view) {
        m_probe.stop();
        return;
    }
    QMetaObject::invokeMethod(m_view, "probe", Q_ARG(QVariant, StickerPage::playStateProbe()));
}

void StickerHostPage::stopProbing()
{
    m_probe.stop();
    m_probing = false;
}

void StickerHostPage::onProbed(const QVariant &answer)
{
    const QString state = answer.toString();
    // An answer may come after the page it asked about was replaced.
    if (m_id == 0 || state.isEmpty() || !m_probing)
        return;
    stopProbing();
    HostMessage message(Kind::PlayState, m_id);
    message.text = state;
    Q_EMIT send(message);
}

void StickerHostPage::onScriptAnswered(int request, const QVariant &result)
{
    if (m_id == 0)
        return;
    HostMessage message(Kind::Result, m_id);
    message.request = quint32(request);
    message.result = result;
    Q_EMIT send(message);
}

void StickerHostPage::scheduleFrame()
{
    m_changed = true;
    if (m_id == 0 || m_awaitingAcknowledge || m_pace.isActive())
        return;
    const qint64 wait = m_sinceFrame.isValid() ? frameIntervalMs - m_sinceFrame.elapsed() : 0;
    m_pace.start(int(qMax<qint64>(0, wait)));
}

void StickerHostPage::drawFrame()
{
    m_changed = false;
    m_sinceFrame.start();
    m_control.polishItems();
    m_control.beginFrame();
    m_control.sync();
    m_control.render();
    m_control.endFrame();
    m_awaitingAcknowledge = true;
    HostMessage message(Kind::Frame, m_id);
    message.frame = m_image;
    Q_EMIT send(message);
}
