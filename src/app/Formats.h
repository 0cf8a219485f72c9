#pragma once

#include <QDateTime>
#include <QObject>
#include <QtQml/qqmlregistration.h>

// Sizes, durations, places, days and phone numbers as the views show them, in the
// user's locale.
class Formats : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

public:
    explicit Formats(QObject *parent = nullptr);

    // "820 bytes", "1.2 MB" (decimal units), …
    Q_INVOKABLE static QString dataSize(qint64 bytes);
    // "0:07", "12:30", "1:02:03", in the locale's digits.
    Q_INVOKABLE static QString duration(int seconds);
    // "51.50070° N, 0.12460° W": the same in every language; empty for a
    // coordinate that is not a number.
    Q_INVOKABLE static QString coordinates(double latitude, double longitude);
    // A number in international form, from the digits it holds (TDLib gives
    // "15550100"): "+1 555 0100", "+44 7700 900123", "+49 1512 3456789". Common
    // countries get their usual grouping; others "+", the country code and the
    // rest in groups of three or four. "" when there are no digits.
    Q_INVOKABLE static QString phoneNumber(const QString &number);
    // A day as the transcript's separators name it: "Today", "Yesterday", the
    // weekday within the last week, else the date; relative to today. The views
    // pass the language in effect (AppLanguage.language) so that their bindings
    // make the label again when it changes; the label itself speaks the default
    // locale and the installed catalog.
    Q_INVOKABLE static QString dayLabel(const QDateTime &date, const QString &language = {});
    static QString dayLabel(const QDate &day, const QDate &today);
};
