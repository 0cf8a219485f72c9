// vost-page-fetcher: fetches the pages and pictures of link previews for Vost in a
// process of its own. Vost starts it when a preview first needs the network and
// closes its input when none has for a while; TLS and its memory go with it.
//
// Requests come on standard input and answers go to standard output, as messages
// of the page fetch protocol. The fetcher ends when its input ends or brings a
// malformed message.

#include "PageFetcher.h"
#include "render/PageFetchProtocol.h"

#include <QCoreApplication>
#include <QSocketNotifier>

#include <cerrno>
#include <cstdio>
#include <unistd.h>

namespace {

bool writeAll(const QByteArray &bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(STDOUT_FILENO, bytes.constData() + written, size_t(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("vost-page-fetcher"));
    if (argc != 1 || isatty(STDIN_FILENO)) {
        std::fputs("usage: vost-page-fetcher (Vost starts it and talks to it through a pipe)\n", stderr);
        return 2;
    }
    PageFetcher fetcher;
    PageFetchProtocol::Reader reader;
    QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
    QObject::connect(&input, &QSocketNotifier::activated, &application, [&] {
        char buffer[64 * 1024];
        const ssize_t count = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (count < 0 && errno == EINTR)
            return;
        if (count <= 0) {
            input.setEnabled(false);
            QCoreApplication::quit();
            return;
        }
        reader.append(QByteArray(buffer, count));
        bool malformed = false;
        while (const std::optional<PageFetchProtocol::Message> message = reader.next()) {
            const auto *request = std::get_if<PageFetchProtocol::Request>(&*message);
            if (!request) {
                malformed = true;
                break;
            }
            fetcher.fetch(*request, [](const PageFetchProtocol::Answer &answer) {
                if (!writeAll(PageFetchProtocol::encode(answer)))
                    QCoreApplication::exit(1);
            });
        }
        if (malformed || reader.failed()) {
            std::fputs("vost-page-fetcher: malformed request\n", stderr);
            input.setEnabled(false);
            QCoreApplication::exit(1);
        }
    });
    return application.exec();
}
