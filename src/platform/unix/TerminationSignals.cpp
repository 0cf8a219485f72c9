#include "platform/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace {

constexpr std::array handledSignals{SIGTERM, SIGINT, SIGHUP};

// The handler may only write to a descriptor: the rest happens in the event loop.
int writeEnd = -1;
int readEnd = -1;

void forward(int signalNumber)
{
    const int savedErrno = errno;
    const unsigned char number = static_cast<unsigned char>(signalNumber);
    [[maybe_unused]] const ssize_t written = ::write(writeEnd, &number, 1);
    errno = savedErrno;
}

} // namespace

TerminationSignals::TerminationSignals(QObject *parent)
    : QObject(parent)
{
    if (writeEnd < 0) {
        int ends[2];
        if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0, ends) != 0)
            return;
        writeEnd = ends[0];
        readEnd = ends[1];
    }
    auto *notifier = new QSocketNotifier(readEnd, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &TerminationSignals::readPending);
    struct sigaction action = {};
    action.sa_handler = forward;
    sigemptyset(&action.sa_mask);
    action.sa_flags = SA_RESTART;
    for (const int signalNumber : handledSignals)
        ::sigaction(signalNumber, &action, nullptr);
}

TerminationSignals::~TerminationSignals()
{
    // From here on a signal ends the process as it would have without us.
    for (const int signalNumber : handledSignals)
        std::signal(signalNumber, SIG_DFL);
}

void TerminationSignals::readPending()
{
    unsigned char number = 0;
    while (::read(readEnd, &number, 1) == 1)
        Q_EMIT received(number);
}
