#pragma once

#include <QByteArray>
#include <QObject>
#include <QPointer>

#include <atomic>
#include <functional>
#include <memory>

class QThread;
class TDLibRuntime;

// Pulls TDLib's answers and updates on a background thread and hands each one to
// the receiver's thread, waiting until it has been handled, so events are handled
// one at a time and in TDLib's order.
class ReceiveLoop : public QObject
{
    Q_OBJECT

public:
    using Handler = std::function<void(const QByteArray &)>;

    // The loop keeps the runtime alive. The handler runs on this object's thread
    // and only while the receiver exists; events that arrive later are dropped.
    ReceiveLoop(std::shared_ptr<const TDLibRuntime> runtime, QObject *receiver, Handler handler);
    ~ReceiveLoop() override;

    void start();
    // Ends the loop: events still arriving are dropped. Returns once the thread has
    // finished (within the receive timeout), handling any event it is delivering.
    void stop();
    bool isRunning() const;

private:
    void run();
    Q_INVOKABLE void deliver(const QByteArray &event);

    std::shared_ptr<const TDLibRuntime> m_runtime;
    QPointer<QObject> m_receiver;
    Handler m_handler;
    std::atomic_bool m_stopRequested = false;
    QThread *m_thread = nullptr;
};
