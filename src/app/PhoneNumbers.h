#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// Phone numbers as people read them.
class PhoneNumbers : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit PhoneNumbers(QObject *parent = nullptr);

    // A number in international form, from the digits it holds (TDLib gives
    // "15550100"): "+1 555 0100", "+44 7700 900123", "+49 1512 3456789". Common
    // countries get their usual grouping; others "+", the country code and the
    // rest in groups of three or four. "" when there are no digits.
    Q_INVOKABLE static QString international(const QString &number);
};
