#pragma once

#include "render/PageFetchProtocol.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>

class QProcess;

// Vost's side of the page fetcher, the helper process that fetches for link
// previews. It starts the fetcher with the first fetch and lets it end once no
// fetch has been waiting for a while. Every fetch is answered exactly once: when
// the fetcher cannot start, ends on its own or sends what cannot be read, the
// fetches it had are answered as not reached.
class PageFetchClient : public QObject
{
    Q_OBJECT

public:
    static PageFetchClient &instance();

    using Completion = std::function<void(const PageFetchProtocol::Answer &)>;
    // The completion runs later on this thread, unless the context is gone by then.
    // Returns the fetch's number, for cancel().
    quint32 fetch(const QUrl &url, int timeoutMs, bool browserIdentity, QObject *context, Completion completion);
    // The completion will not run; the fetcher finishes the fetch unheard.
    void cancel(quint32 id);

    bool isRunning() const;
    // How long the fetcher stays once nothing waits for it.
    void setLingerInterval(std::chrono::milliseconds interval);

private:
    PageFetchClient();

    struct Pending {
        QPointer<QObject> context;
        Completion completion;
    };

    bool start();
    void stop();
    void readAnswers();
    void answer(const PageFetchProtocol::Answer &answer);
    void answerEverythingAsNotReached();

    QHash<quint32, Pending> m_pending;
    quint32 m_nextID = 1;
    QPointer<QProcess> m_process;
    PageFetchProtocol::Reader m_reader;
    QTimer m_linger;
};
