#include "tdlib/ReceiveLoop.h"

#include "tdlib/TDLibRuntime.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

using namespace Qt::StringLiterals;

namespace {
constexpr double receiveTimeoutSeconds = 1.0;
}

ReceiveLoop::ReceiveLoop(std::shared_ptr<const TDLibRuntime> runtime, QObject *receiver, Handler handler)
    : m_runtime(std::move(runtime))
    , m_receiver(receiver)
    , m_handler(std::move(handler))
{}

ReceiveLoop::~ReceiveLoop()
{
    stop();
}

void ReceiveLoop::start()
{
    if (m_thread)
        return;
    m_thread = QThread::create([this] { run(); });
    m_thread->setObjectName(u"TDLib receive"_s);
    m_thread->start(QThread::HighPriority);
}

bool ReceiveLoop::isRunning() const
{
    return m_thread && m_thread->isRunning();
}

void ReceiveLoop::stop()
{
    if (!m_thread)
        return;
    m_stopRequested = true;
    // The thread may be waiting for this thread to handle an event: keep handling
    // the hand-overs addressed to us until it has finished.
    while (!m_thread->wait(QDeadlineTimer(20)))
        QCoreApplication::sendPostedEvents(this, QEvent::MetaCall);
    delete m_thread;
    m_thread = nullptr;
}

void ReceiveLoop::run()
{
    while (!m_stopRequested) {
        const char *received = m_runtime->receive(receiveTimeoutSeconds);
        if (!received)
            continue;
        // TDLib reuses its buffer on the next call: copy at once.
        const QByteArray event(received);
        if (m_stopRequested)
            break;
        QMetaObject::invokeMethod(
            this, [this, &event] { deliver(event); }, Qt::BlockingQueuedConnection);
    }
}

void ReceiveLoop::deliver(const QByteArray &event)
{
    if (m_receiver && !m_stopRequested)
        m_handler(event);
}
