#pragma once

// The processes a test's code started, as /proc lists them.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QList>

namespace ChildProcesses {

// The processes started by any thread of parent.
inline QList<qint64> of(qint64 parent)
{
    QList<qint64> found;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(parent));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(tasks.filePath(task) + QStringLiteral("/children"));
        if (!children.open(QIODevice::ReadOnly))
            continue;
        for (const QByteArray &child : children.readAll().split(' ')) {
            if (!child.trimmed().isEmpty())
                found.append(child.trimmed().toLongLong());
        }
    }
    return found;
}

// The processes this one started whose command name (cut to 15 characters by the
// kernel) begins with prefix.
inline QList<qint64> named(const QByteArray &prefix)
{
    QList<qint64> found;
    for (const qint64 child : of(QCoreApplication::applicationPid())) {
        QFile command(QStringLiteral("/proc/%1/comm").arg(child));
        if (command.open(QIODevice::ReadOnly) && command.readAll().startsWith(prefix))
            found.append(child);
    }
    return found;
}

} // namespace ChildProcesses
