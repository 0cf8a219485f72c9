#pragma once

#include "tdlib/AppBundle.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>

#include <optional>

class TelegramSession;

// Holds the process's one TelegramSession and starts it as the root view does:
// only when there are credentials. The popover's root QML reads hasCredentials,
// session and isReady from it.
//
// A stand-in until AppRootView (which also owns the ChatViewModel and wires the
// two together) exists: AppRootView takes over these three properties, the
// session start and publishing the unread total, and this class goes away.
class SessionHost : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("The application makes the one session host.")
    Q_PROPERTY(bool hasCredentials READ hasCredentials CONSTANT)
    Q_PROPERTY(QObject *session READ sessionObject CONSTANT)
    Q_PROPERTY(bool isReady READ isReady NOTIFY isReadyChanged)

public:
    struct Credentials {
        qint64 apiID = 0;
        QString apiHash;
    };

    // bundle: where TDLib is loaded from (the demo bundle for the demo account).
    SessionHost(std::optional<Credentials> credentials, std::optional<AppBundle> bundle, QObject *parent = nullptr);
    ~SessionHost() override;

    bool hasCredentials() const { return m_credentials.has_value(); }
    QObject *sessionObject() const;
    TelegramSession &session() const { return *m_session; }
    bool isReady() const;

    // Starts the session when there are credentials; otherwise nothing starts.
    void startIfPossible();
    // Flushes TDLib's database; called when the application quits.
    void shutDown();

Q_SIGNALS:
    void isReadyChanged();

private:
    void publishUnreadCount();

    std::optional<Credentials> m_credentials;
    TelegramSession *m_session = nullptr;
};
