#include "PortalFileChooser.h"

#include "PortalRequest.h"

#include <QDBusMessage>
#include <QFile>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {
const QString chooserInterface = u"org.freedesktop.portal.FileChooser"_s;

// The portal takes folders as NUL-terminated bytes.
QByteArray folderBytes(const QString &folder)
{
    return QFile::encodeName(folder) + '\0';
}
} // namespace

std::unique_ptr<FileChooser> makeSystemFileChooser()
{
    return std::make_unique<PortalFileChooser>();
}

PortalFileChooser::PortalFileChooser(QDBusConnection connection, QObject *parent)
    : FileChooser(parent)
    , m_connection(connection)
{
    if (!m_connection.isConnected())
        return;
    PortalRequest::askVersion(m_connection, chooserInterface, this, [this](uint version) {
        m_available = version >= 1;
        Q_EMIT availableChanged();
    });
}

void PortalFileChooser::openFiles(const QString &title, const QString &folder)
{
    ask(u"OpenFile"_s, title, {{u"multiple"_s, true}, {u"current_folder"_s, folderBytes(folder)}});
}

void PortalFileChooser::saveFile(const QString &title, const QString &folder, const QString &name)
{
    ask(u"SaveFile"_s, title, {{u"current_folder"_s, folderBytes(folder)}, {u"current_name"_s, name}});
}

void PortalFileChooser::ask(const QString &method, const QString &title, QVariantMap options)
{
    delete m_request;
    const QString token = PortalRequest::nextToken();
    options.insert(u"handle_token"_s, token);
    options.insert(u"modal"_s, true);
    QDBusMessage call =
        QDBusMessage::createMethodCall(PortalRequest::service, PortalRequest::path, chooserInterface, method);
    // No parent window: the popover has stepped aside while the chooser is open.
    call << QString() << title << options;
    m_request = PortalRequest::send(m_connection, call, token, this);
    connect(m_request, &PortalRequest::answered, this, &PortalFileChooser::onAnswer);
    connect(m_request, &PortalRequest::failed, this, &PortalFileChooser::failed);
}

void PortalFileChooser::onAnswer(uint response, const QVariantMap &results)
{
    // 0: chosen; 1: cancelled by the user; 2: ended some other way.
    if (response != 0) {
        Q_EMIT cancelled();
        return;
    }
    QStringList paths;
    for (const QString &uri : results.value(u"uris"_s).toStringList()) {
        const QUrl url(uri);
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    }
    if (paths.isEmpty())
        Q_EMIT cancelled();
    else
        Q_EMIT chosen(paths);
}
