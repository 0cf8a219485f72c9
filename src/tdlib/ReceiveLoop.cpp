#include "tdlib/ReceiveLoop.h"

#include "tdlib/TDLibRuntime.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QMetaMethod>
#include <QThread>

using namespace Qt::StringLiterals;

// GCC says __SANITIZE_THREAD__, clang __has_feature(thread_sanitizer).
#if defined(__SANITIZE_THREAD__)
#define VOST_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define VOST_THREAD_SANITIZER 1
#endif
#endif

#if defined(VOST_THREAD_SANITIZER)
extern "C" void __tsan_acquire(void *address);
extern "C" void __tsan_release(void *address);
#endif

namespace {
constexpr double receiveTimeoutSeconds = 1.0;

// ThreadSanitizer cannot see Qt's synchronisation (its semaphores wait on futexes
// directly), so each side of a hand-over says that what it did before comes
// before what the other side does after.
void handOver([[maybe_unused]] void *token)
{
#if defined(VOST_THREAD_SANITIZER)
    __tsan_release(token);
#endif
}

void takeOver([[maybe_unused]] void *token)
{
#if defined(VOST_THREAD_SANITIZER)
    __tsan_acquire(token);
#endif
}
} // namespace

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
        // Through the meta-object rather than a lambda: Qt then makes no object per
        // event, and nothing of the call is touched outside the hand-over.
        static const QMetaMethod deliverMethod =
            staticMetaObject.method(staticMetaObject.indexOfMethod("deliver(QByteArray)"));
        handOver(this);
        deliverMethod.invoke(this, Qt::BlockingQueuedConnection, Q_ARG(QByteArray, event));
        takeOver(this);
    }
}

void ReceiveLoop::deliver(const QByteArray &event)
{
    takeOver(this);
    if (m_receiver && !m_stopRequested)
        m_handler(event);
    handOver(this);
}
