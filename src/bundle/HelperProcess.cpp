#include "bundle/HelperProcess.h"

#include "bundle/AppBundle.h"

#include <QDebug>
#include <QTimer>

namespace HelperProcess {

QProcess *start(const QString &program, const QString &description, QProcess::ProcessChannelMode mode, QObject *parent)
{
    const AppBundle bundle = AppBundle::main();
    const std::optional<QString> path = bundle.helperProgram(program);
    if (!path) {
        qWarning().noquote() << description << "is missing from" << bundle.rootPath();
        return nullptr;
    }
    auto *process = new QProcess(parent);
    process->setProcessChannelMode(mode);
    process->start(*path, {});
    if (!process->waitForStarted()) {
        qWarning().noquote() << description << "does not start:" << process->errorString();
        delete process;
        return nullptr;
    }
    return process;
}

void end(QProcess *process, std::chrono::milliseconds grace)
{
    if (process->state() == QProcess::NotRunning) {
        process->deleteLater();
        return;
    }
    process->closeWriteChannel();
    QObject::connect(process, &QProcess::finished, process, &QObject::deleteLater);
    QTimer::singleShot(grace, process, &QProcess::kill);
}

} // namespace HelperProcess
