#pragma once

#include "platform/FileChooser.h"

#include <QDBusConnection>
#include <QVariantMap>

// The FileChooser portal: OpenFile and SaveFile return a request whose Response
// signal carries the answer. The request's path is known in advance from the
// handle token, so the answer cannot come before it is listened for.
class PortalFileChooser : public FileChooser
{
    Q_OBJECT

public:
    explicit PortalFileChooser(QDBusConnection connection = QDBusConnection::sessionBus(), QObject *parent = nullptr);

    bool isAvailable() const override { return m_available; }
    void openFiles(const QString &title, const QString &folder) override;
    void saveFile(const QString &title, const QString &folder, const QString &name) override;

private Q_SLOTS:
    void onResponse(uint response, const QVariantMap &results);

private:
    void ask(const QString &method, const QString &title, QVariantMap options);
    void listenOn(const QString &requestPath);
    void stopListening();

    QDBusConnection m_connection;
    bool m_available = false;
    QString m_requestPath;
    int m_requests = 0;
};
