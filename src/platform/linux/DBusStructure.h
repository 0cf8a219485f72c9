#pragma once

#include <QDBusArgument>

// A D-Bus structure is its members in order. A struct's operator<< and operator>>
// name its members once, here written and read between the structure's brackets.
namespace DBusStructure {

template<typename... Members> QDBusArgument &write(QDBusArgument &argument, const Members &...members)
{
    argument.beginStructure();
    (argument << ... << members);
    argument.endStructure();
    return argument;
}

template<typename... Members> const QDBusArgument &read(const QDBusArgument &argument, Members &...members)
{
    argument.beginStructure();
    (argument >> ... >> members);
    argument.endStructure();
    return argument;
}

} // namespace DBusStructure
