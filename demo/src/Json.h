#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>

#include <initializer_list>
#include <utility>

// Small helpers for writing TDLib objects: every object carries "@type", 64-bit
// identifiers are written as decimal strings and everything else as JSON numbers.
namespace demo {

using Field = std::pair<const char *, QJsonValue>;

QJsonObject object(const char *type, std::initializer_list<Field> fields = {});
QJsonObject error(int code, const QString &message);
QJsonObject ok();
QJsonValue int64String(qint64 value);
QJsonObject formattedText(const QString &text, const QJsonArray &entities = {});
// Finds the URLs in a text and returns textEntityTypeUrl entities for them.
QJsonArray urlEntities(const QString &text);

// Reads a JSON number or a decimal string; `fallback` when it is neither.
qint64 int64Of(const QJsonValue &value, qint64 fallback = 0);
QString typeOf(const QJsonValue &value);
QString stringOf(const QJsonObject &object, const char *key);
// The digits of a text, as phone numbers are compared: "+1 555-0100" is "15550100".
QString digitsOf(const QString &text);

} // namespace demo
