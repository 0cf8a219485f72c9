#pragma once

// A raw TDLib message as the message store keeps it: its compact JSON text and
// the two fields the store orders and finds messages by. A parsed QJsonObject
// takes about five times the memory of its text, and a chat the user has
// scrolled back in keeps hundreds of messages for as long as the process runs;
// parsing the text again costs microseconds when the chat is republished.

#include "tdlib/TdJson.h"

#include <QByteArray>

#include <optional>

class StoredMessage
{
public:
    explicit StoredMessage(const TdObject &message);

    // "id", when it is a valid 64-bit identifier.
    std::optional<qint64> id() const { return m_id; }
    // "date", 0 when there is none.
    qint64 date() const { return m_date; }
    // The message as TDLib sent it (or as later updates changed it).
    TdObject object() const;
    // Sets a field, or removes it for an undefined or null value.
    void setField(const QString &field, const QJsonValue &value);

    // Oldest first; messages of the same second by identifier.
    static bool sortsBefore(const StoredMessage &a, const StoredMessage &b);

private:
    void store(const TdObject &message);

    QByteArray m_json;
    std::optional<qint64> m_id;
    qint64 m_date = 0;
};
