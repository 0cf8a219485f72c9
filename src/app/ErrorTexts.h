#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

// Sentences for the errors TDLib gives while signing in and while finding people
// (a phone number, a code, a password, a username). The session keeps TDLib's
// own text; the views show the sentence, or the text as it came when it is not
// one of these.
class ErrorTexts : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit ErrorTexts(QObject *parent = nullptr);

    Q_INVOKABLE static QString sentence(const QString &error);
};
