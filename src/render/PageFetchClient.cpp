#include "render/PageFetchClient.h"

#include "bundle/HelperProcess.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

// The previews of one screen come in a burst. The fetcher starts in tens of
// milliseconds, so it need not stay long after one: the tray is what lasts.
constexpr std::chrono::seconds defaultLinger{5};
constexpr std::chrono::seconds endingGrace{2};

} // namespace

PageFetchClient &PageFetchClient::instance()
{
    static PageFetchClient *client = [] {
        auto *made = new PageFetchClient;
        QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, made, [made] { made->stop(); });
        return made;
    }();
    return *client;
}

PageFetchClient::PageFetchClient()
{
    m_linger.setSingleShot(true);
    m_linger.setInterval(defaultLinger);
    connect(&m_linger, &QTimer::timeout, this, &PageFetchClient::stop);
}

quint32 PageFetchClient::fetch(const QUrl &url, int timeoutMs, bool browserIdentity, QObject *context,
                               Completion completion)
{
    const quint32 id = m_nextID++;
    m_pending.insert(id, {context, std::move(completion)});
    const PageFetchProtocol::Request request{id, url, timeoutMs, browserIdentity};
    // The fetcher would end on it, and take the other fetches with it.
    if (!PageFetchProtocol::isWellFormed(request)) {
        QMetaObject::invokeMethod(
            this, [this, id] { answer(PageFetchProtocol::notReached(id)); }, Qt::QueuedConnection);
        return id;
    }
    m_linger.stop();
    if (!isRunning() && !start()) {
        // Answered as the network would: later, never from inside this call.
        QMetaObject::invokeMethod(
            this, [this] { answerEverythingAsNotReached(); }, Qt::QueuedConnection);
        return id;
    }
    m_process->write(PageFetchProtocol::encode(request));
    return id;
}

void PageFetchClient::cancel(quint32 id)
{
    m_pending.remove(id);
    if (m_pending.isEmpty() && isRunning())
        m_linger.start();
}

bool PageFetchClient::isRunning() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

void PageFetchClient::setLingerInterval(std::chrono::milliseconds interval)
{
    m_linger.setInterval(interval);
}

bool PageFetchClient::start()
{
    m_reader = {};
    m_process =
        HelperProcess::start(u"vost-page-fetcher"_s, u"the page fetcher"_s, QProcess::ForwardedErrorChannel, this);
    if (!m_process)
        return false;
    connect(m_process, &QProcess::readyReadStandardOutput, this, &PageFetchClient::readAnswers);
    connect(m_process, &QProcess::finished, this, [this] {
        readAnswers();
        if (!m_pending.isEmpty())
            qWarning("the page fetcher ended unexpectedly");
        stop();
    });
    return true;
}

// Closing its input tells the fetcher to end; one that does not is made to.
void PageFetchClient::stop()
{
    m_linger.stop();
    QProcess *process = m_process;
    m_process = nullptr;
    if (process) {
        disconnect(process, nullptr, this, nullptr);
        HelperProcess::end(process, endingGrace);
    }
    answerEverythingAsNotReached();
}

void PageFetchClient::readAnswers()
{
    if (!m_process)
        return;
    m_reader.append(m_process->readAllStandardOutput());
    while (const std::optional<PageFetchProtocol::Message> message = m_reader.next()) {
        const auto *answered = std::get_if<PageFetchProtocol::Answer>(&*message);
        if (!answered) {
            qWarning("the page fetcher sent a request; it is ended");
            return stop();
        }
        answer(*answered);
    }
    if (m_reader.failed()) {
        qWarning("the page fetcher sent what cannot be read; it is ended");
        stop();
    }
}

void PageFetchClient::answer(const PageFetchProtocol::Answer &answer)
{
    const Pending pending = m_pending.take(answer.id);
    if (m_pending.isEmpty() && isRunning())
        m_linger.start();
    if (pending.completion && pending.context)
        pending.completion(answer);
}

void PageFetchClient::answerEverythingAsNotReached()
{
    const QHash<quint32, Pending> pending = std::exchange(m_pending, {});
    for (auto it = pending.cbegin(); it != pending.cend(); ++it) {
        if (it.value().completion && it.value().context)
            it.value().completion(PageFetchProtocol::notReached(it.key()));
    }
}
