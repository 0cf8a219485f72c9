#include "StickerHostClient.h"

#include "StickerHostView.h"
#include "bundle/AppBundle.h"

#include <QCoreApplication>
#include <QLocalServer>
#include <QLocalSocket>
#include <QProcess>
#include <QUuid>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using StickerHostProtocol::Message;

namespace {

// Gone within a minute of the last sticker leaving, with time to end.
constexpr auto defaultLinger = 45s;
constexpr int endingGraceMs = 5000;

} // namespace

StickerHostClient &StickerHostClient::instance()
{
    static StickerHostClient *client = [] {
        auto *made = new StickerHostClient;
        // Ended with the application, before the event loop is gone.
        QObject::connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, made,
                         [made] { made->stop(Ending::Wait); });
        return made;
    }();
    return *client;
}

StickerHostClient::StickerHostClient()
{
    m_linger.setSingleShot(true);
    m_linger.setInterval(defaultLinger);
    connect(&m_linger, &QTimer::timeout, this, [this] { stop(Ending::InTheBackground); });
}

StickerHostClient::~StickerHostClient()
{
    stop(Ending::Wait);
}

quint32 StickerHostClient::attach(StickerHostView *view)
{
    const quint32 id = m_nextView++;
    m_views.insert(id, view);
    m_linger.stop();
    return id;
}

void StickerHostClient::detach(quint32 view)
{
    if (!m_views.remove(view))
        return;
    if (isRunning())
        send(Message(StickerHostProtocol::Kind::Close, view));
    if (m_views.isEmpty() && isRunning())
        m_linger.start();
}

void StickerHostClient::send(const Message &message)
{
    if (!isRunning() && !start())
        return;
    if (m_connection)
        m_connection->write(StickerHostProtocol::encode(message));
    else
        m_unsent += StickerHostProtocol::encode(message);
}

bool StickerHostClient::isRunning() const
{
    return m_process && m_process->state() != QProcess::NotRunning;
}

qint64 StickerHostClient::processId() const
{
    return isRunning() ? m_process->processId() : 0;
}

void StickerHostClient::setLingerInterval(std::chrono::milliseconds interval)
{
    m_linger.setInterval(interval);
}

bool StickerHostClient::start()
{
    const AppBundle bundle = AppBundle::main();
    const std::optional<QString> program = bundle.helperProgram("vost-sticker-host"_L1);
    if (!program) {
        qWarning().noquote() << "the sticker host is missing from" << bundle.rootPath();
        return false;
    }
    m_reader = {};
    m_unsent.clear();
    // Only this user may connect, and only the one host is taken.
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->setMaxPendingConnections(1);
    const QString name = "vost-sticker-host-"_L1 + QUuid::createUuid().toString(QUuid::Id128);
    if (!m_server->listen(name)) {
        qWarning().noquote() << "the sticker host cannot be reached:" << m_server->errorString();
        delete m_server;
        return false;
    }
    connect(m_server, &QLocalServer::newConnection, this, &StickerHostClient::acceptConnection);
    m_process = new QProcess(this);
    // Its warnings are worth seeing beside Vost's own.
    m_process->setProcessChannelMode(QProcess::ForwardedChannels);
    m_process->setStandardInputFile(QProcess::nullDevice());
    connect(m_process, &QProcess::finished, this, &StickerHostClient::onFinished);
    m_process->start(*program, {m_server->fullServerName()});
    if (!m_process->waitForStarted()) {
        qWarning().noquote() << "the sticker host does not start:" << m_process->errorString();
        delete m_process;
        delete m_server;
        return false;
    }
    Q_EMIT runningChanged();
    return true;
}

// The host ends when its input closes; one that does not is made to. While the
// application runs, nothing waits for that: a new host may already start beside it.
void StickerHostClient::stop(Ending ending)
{
    m_linger.stop();
    QProcess *process = m_process;
    if (!process)
        return;
    m_process = nullptr;
    m_reader = {};
    m_unsent.clear();
    disconnect(process, nullptr, this, nullptr);
    // Closing the connection tells the host to end.
    if (m_connection) {
        disconnect(m_connection, nullptr, this, nullptr);
        m_connection->abort();
        m_connection->deleteLater();
    }
    if (m_server)
        m_server->deleteLater();
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
    } else if (ending == Ending::Wait) {
        if (!process->waitForFinished(endingGraceMs))
            process->kill();
        process->waitForFinished(endingGraceMs);
        delete process;
    } else {
        connect(process, &QProcess::finished, process, &QObject::deleteLater);
        QTimer::singleShot(endingGraceMs, process, &QProcess::kill);
    }
    Q_EMIT runningChanged();
    const QList<StickerHostView *> views = m_views.values();
    for (StickerHostView *view : views)
        view->hostLost();
}

void StickerHostClient::acceptConnection()
{
    QLocalSocket *connection = m_server ? m_server->nextPendingConnection() : nullptr;
    if (!connection || m_connection) {
        delete connection;
        return;
    }
    m_server->close();
    m_connection = connection;
    connect(m_connection, &QLocalSocket::readyRead, this, &StickerHostClient::readMessages);
    m_connection->write(m_unsent);
    m_unsent.clear();
}

void StickerHostClient::readMessages()
{
    if (!m_connection)
        return;
    m_reader.append(m_connection->readAll());
    while (const std::optional<Message> message = m_reader.next()) {
        if (StickerHostView *view = m_views.value(message->view))
            view->receive(*message);
    }
    if (m_reader.failed()) {
        qWarning("the sticker host sent what cannot be read; it is ended");
        stop(Ending::InTheBackground);
    }
}

void StickerHostClient::onFinished()
{
    qWarning("the sticker host ended unexpectedly");
    stop(Ending::InTheBackground);
}
