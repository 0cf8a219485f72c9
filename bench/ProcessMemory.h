#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

// The proportional set size of a process and of every process below it, in
// kilobytes, from /proc/PID/smaps_rollup: what a process tree costs the machine.
namespace ProcessMemory {

inline qint64 ownPss(qint64 pid)
{
    QFile rollup(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!rollup.open(QIODevice::ReadOnly))
        return 0;
    for (const QByteArray &line : rollup.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            return line.mid(4).trimmed().split(' ').first().toLongLong();
    }
    return 0;
}

inline QList<qint64> children(qint64 pid)
{
    QList<qint64> found;
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString &task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task) + QStringLiteral("/children"));
        if (file.open(QIODevice::ReadOnly)) {
            for (const QByteArray &child : file.readAll().split(' ')) {
                if (const qint64 id = child.trimmed().toLongLong(); id > 0)
                    found.append(id);
            }
        }
    }
    return found;
}

inline qint64 treePss(qint64 pid)
{
    qint64 total = ownPss(pid);
    for (const qint64 child : children(pid))
        total += treePss(child);
    return total;
}

// How many processes run below pid.
inline int descendantCount(qint64 pid)
{
    int count = 0;
    for (const qint64 child : children(pid))
        count += 1 + descendantCount(child);
    return count;
}

} // namespace ProcessMemory
