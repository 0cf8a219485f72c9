#pragma once

#include <QJsonValue>

// Equality of JSON values, where the string "<any>" in the expected value matches
// anything. Used by wait_for lines and by the scenario-test runner.
bool jsonMatches(const QJsonValue &expected, const QJsonValue &actual);

// A value as one line of compact JSON.
QString compactJson(const QJsonValue &value);
