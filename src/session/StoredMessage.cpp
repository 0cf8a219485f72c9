#include "session/StoredMessage.h"

#include <QJsonDocument>

using namespace Qt::StringLiterals;

StoredMessage::StoredMessage(const TdObject &message)
{
    store(message);
}

TdObject StoredMessage::object() const
{
    return QJsonDocument::fromJson(m_json).object();
}

void StoredMessage::setField(const QString &field, const QJsonValue &value)
{
    TdObject message = object();
    if (value.isUndefined() || value.isNull())
        message.remove(field);
    else
        message.insert(field, value);
    store(message);
}

bool StoredMessage::sortsBefore(const StoredMessage &a, const StoredMessage &b)
{
    return a.m_date != b.m_date ? a.m_date < b.m_date : a.m_id.value_or(0) < b.m_id.value_or(0);
}

void StoredMessage::store(const TdObject &message)
{
    m_json = QJsonDocument(message).toJson(QJsonDocument::Compact);
    m_id = int64From(message.value("id"_L1));
    m_date = integerFrom(message.value("date"_L1)).value_or(0);
}
