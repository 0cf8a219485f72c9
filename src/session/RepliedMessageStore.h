#pragma once

#include "session/SendRequest.h"
#include "tdlib/TdJson.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <optional>

// The messages that replies answer but the loaded history does not hold: asked of
// TDLib with getMessage, once each, so that a reply's quote names its sender and
// text; a message TDLib no longer has is remembered as gone.
class RepliedMessageStore : public QObject
{
    Q_OBJECT

public:
    explicit RepliedMessageStore(SendRequest send, QObject *parent = nullptr);

    // Asks for the answered messages of `messages` that neither `held` nor an
    // earlier request has.
    void requestMissing(qint64 chatID, const QList<TdObject> &messages, const QHash<qint64, const TdObject *> &held);
    // Takes an answer to one of its requests (its "@extra"); the chat whose quotes
    // it completes, or nothing when it is none of its own.
    std::optional<QString> handleAnswer(const TdObject &extra, const QString &type, const TdObject &answer);

    // What TDLib answered about a chat's answered messages.
    const TdObject *message(const QString &chatID, qint64 messageID) const;
    bool isMissing(const QString &chatID, qint64 messageID) const;

    // Forgets what the account asked; late answers no longer match.
    void reset();

private:
    SendRequest m_send;
    QHash<QString, QHash<qint64, TdObject>> m_messages;
    QHash<QString, QSet<qint64>> m_missing;
    QHash<QString, QSet<qint64>> m_requested;
};
