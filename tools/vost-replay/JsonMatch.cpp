#include "JsonMatch.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

using namespace Qt::StringLiterals;

bool jsonMatches(const QJsonValue &expected, const QJsonValue &actual)
{
    if (expected.isString() && expected.toString() == "<any>"_L1)
        return true;
    if (expected.isObject() && actual.isObject()) {
        const QJsonObject e = expected.toObject();
        const QJsonObject a = actual.toObject();
        if (e.keys() != a.keys())
            return false;
        for (auto it = e.begin(); it != e.end(); ++it) {
            if (!jsonMatches(it.value(), a.value(it.key())))
                return false;
        }
        return true;
    }
    if (expected.isArray() && actual.isArray()) {
        const QJsonArray e = expected.toArray();
        const QJsonArray a = actual.toArray();
        if (e.size() != a.size())
            return false;
        for (qsizetype i = 0; i < e.size(); ++i) {
            if (!jsonMatches(e.at(i), a.at(i)))
                return false;
        }
        return true;
    }
    return expected == actual;
}

QString compactJson(const QJsonValue &value)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).chopped(1).mid(1));
}
