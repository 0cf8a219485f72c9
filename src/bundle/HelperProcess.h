#pragma once

#include <QProcess>

#include <chrono>

// Our helper programs (the page fetcher, the sound player) run from the private
// library folder, each in a process of its own that reads its standard input.
namespace HelperProcess {

// Starts the named helper program, its output channels as mode says, as a child
// of parent. The process once it runs; none, with a warning naming the helper by
// its description ("the sound player"), when it is missing or does not start.
QProcess *start(const QString &program, const QString &description, QProcess::ProcessChannelMode mode, QObject *parent);

// Closing its input tells a helper to end; one that has not after grace is made
// to. The process object goes once the process has ended.
void end(QProcess *process, std::chrono::milliseconds grace);

} // namespace HelperProcess
