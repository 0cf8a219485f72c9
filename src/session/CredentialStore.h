#pragma once

#include <QObject>
#include <QVariantMap>

#include <optional>

// The Telegram API credentials from the information dictionary, read once.
class CredentialStore : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool hasCredentials READ hasCredentials CONSTANT)

public:
    explicit CredentialStore(const QVariantMap &infoDictionary, QObject *parent = nullptr);

    std::optional<qint64> apiID() const { return m_apiID; }
    std::optional<QString> apiHash() const { return m_apiHash; }
    bool hasCredentials() const { return m_apiID && m_apiHash; }

private:
    std::optional<qint64> m_apiID;
    std::optional<QString> m_apiHash;
};
