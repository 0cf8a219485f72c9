#pragma once

#include <QDir>
#include <QFile>
#include <QString>
#include <QStringList>

#include <unistd.h>

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

// The CPU time a process and every process still running below it have taken, in
// seconds, from /proc/PID/stat (helpers' time counts before they are waited for).
inline double treeCpuSeconds(qint64 pid)
{
    double seconds = 0;
    QFile stat(QStringLiteral("/proc/%1/stat").arg(pid));
    if (stat.open(QIODevice::ReadOnly)) {
        const QByteArray line = stat.readAll();
        // The fields after the command, which may hold spaces, start at the state.
        const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
        if (fields.size() > 12)
            seconds = double(fields[11].toLongLong() + fields[12].toLongLong()) / double(sysconf(_SC_CLK_TCK));
    }
    for (const qint64 child : children(pid))
        seconds += treeCpuSeconds(child);
    return seconds;
}

} // namespace ProcessMemory
