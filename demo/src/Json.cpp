#include "Json.h"

#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace demo {

QJsonObject object(const char *type, std::initializer_list<Field> fields)
{
    QJsonObject result;
    result.insert("@type"_L1, QString::fromLatin1(type));
    for (const Field &field : fields)
        result.insert(QLatin1StringView(field.first), field.second);
    return result;
}

QJsonObject error(int code, const QString &message)
{
    return object("error", {{"code", code}, {"message", message}});
}

QJsonObject ok()
{
    return object("ok");
}

QJsonValue int64String(qint64 value)
{
    return QString::number(value);
}

QJsonObject formattedText(const QString &text, const QJsonArray &entities)
{
    return object("formattedText", {{"text", text}, {"entities", entities}});
}

QJsonArray urlEntities(const QString &text)
{
    static const QRegularExpression pattern(u"(https?://[^\\s]+|\\b[a-z0-9-]+\\.(com|org|io|dev|net)\\b[^\\s]*)"_s);
    QJsonArray entities;
    auto it = pattern.globalMatch(text);
    while (it.hasNext()) {
        const QRegularExpressionMatch match = it.next();
        entities.append(object("textEntity", {{"offset", int(match.capturedStart())},
                                              {"length", int(match.capturedLength())},
                                              {"type", object("textEntityTypeUrl")}}));
    }
    return entities;
}

qint64 int64Of(const QJsonValue &value, qint64 fallback)
{
    if (value.isDouble())
        return value.toInteger(fallback);
    if (value.isString()) {
        bool parsed = false;
        const qint64 result = value.toString().toLongLong(&parsed);
        return parsed ? result : fallback;
    }
    return fallback;
}

QString typeOf(const QJsonValue &value)
{
    return value.toObject().value("@type"_L1).toString();
}

QString stringOf(const QJsonObject &object, const char *key)
{
    return object.value(QLatin1StringView(key)).toString();
}

QString digitsOf(const QString &text)
{
    QString result;
    for (QChar c : text)
        if (c.isDigit())
            result.append(c);
    return result;
}

} // namespace demo
