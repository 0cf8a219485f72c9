#pragma once

#include "platform/FileChooser.h"

#include <QDBusConnection>
#include <QPointer>
#include <QVariantMap>

class PortalRequest;

// The FileChooser portal: OpenFile and SaveFile, one at a time; a new question
// forgets the answer to the one before.
class PortalFileChooser : public FileChooser
{
    Q_OBJECT

public:
    explicit PortalFileChooser(QDBusConnection connection = QDBusConnection::sessionBus(), QObject *parent = nullptr);

    bool isAvailable() const override { return m_available; }
    void openFiles(const QString &title, const QString &folder) override;
    void saveFile(const QString &title, const QString &folder, const QString &name) override;

private:
    void ask(const QString &method, const QString &title, QVariantMap options);
    void onAnswer(uint response, const QVariantMap &results);

    QDBusConnection m_connection;
    bool m_available = false;
    QPointer<PortalRequest> m_request;
};
