#include "SingleInstance.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QStandardPaths>

#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {
constexpr int timeoutMs = 1500;
// Longer than a closing program takes to close its database.
constexpr int databaseWaitMs = 6000;
const QByteArray showMessage = "show"_ba;
} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
{}

SingleInstance::~SingleInstance() = default;

QString SingleInstance::serverName()
{
    const QString dataFolder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    const QByteArray digest = QCryptographicHash::hash(dataFolder.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
    return u"vost-"_s + QString::number(getuid()) + u'-' + QString::fromLatin1(digest);
}

bool SingleInstance::activateRunningInstance()
{
    QLocalSocket socket;
    socket.connectToServer(serverName());
    if (!socket.waitForConnected(timeoutMs))
        return false;
    // The launcher's activation token goes along: a Wayland compositor lets only
    // its holder take the focus.
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    socket.write(showMessage + (token.isEmpty() ? QByteArray() : ' ' + token) + '\n');
    if (!socket.waitForBytesWritten(timeoutMs))
        return false;
    // The running instance answers once it has shown itself.
    socket.waitForReadyRead(timeoutMs);
    socket.disconnectFromServer();
    return true;
}

bool SingleInstance::waitForDatabase()
{
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    QDir().mkpath(folder);
    m_lock = std::make_unique<QLockFile>(folder + "/vost.lock"_L1);
    // Held for weeks, so never stale by age; one whose program is gone (a crash) is
    // taken over at once.
    m_lock->setStaleLockTime(0);
    return m_lock->tryLock(databaseWaitMs);
}

bool SingleInstance::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server->listen(serverName())) {
        // A socket file left by a client that crashed: nobody answered on it.
        QLocalServer::removeServer(serverName());
        if (!m_server->listen(serverName()))
            return false;
    }
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, m_server, &QLocalServer::close);
    connect(m_server, &QLocalServer::newConnection, this, [this] {
        while (QLocalSocket *socket = m_server->nextPendingConnection()) {
            connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
            connect(socket, &QLocalSocket::readyRead, this, [this, socket] {
                if (!socket->canReadLine())
                    return;
                const QList<QByteArray> words = socket->readLine().trimmed().split(' ');
                if (words.value(0) != showMessage)
                    return;
                Q_EMIT activationRequested(QString::fromUtf8(words.value(1)));
                socket->write("shown\n"_ba);
                socket->flush();
            });
        }
    });
    return true;
}
