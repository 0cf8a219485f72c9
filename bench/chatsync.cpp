// How fast the session takes in an initial sync: events per second for 1,000 and
// 10,000 chats, how the time grows with the account, and how handling compares
// with merely parsing the same JSON. Prints figures; asserts nothing.
//
//   build/bin/bench-chatsync [ROUNDS [CHATS]]

#include "SyncGenerator.h"

#include "session/TelegramSession.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>

namespace {

struct Figures {
    double handleSeconds = 0;
    double parseSeconds = 0;
    qsizetype events = 0;
    qsizetype chats = 0;
};

// The best of several rounds, each on a fresh session.
Figures measure(int chatCount, int rounds)
{
    const QByteArrayList events = generateInitialSync(chatCount);
    Figures best{1e9, 1e9, events.size(), 0};
    for (int round = 0; round < rounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        qsizetype objects = 0;
        for (const QByteArray &event : events)
            objects += QJsonDocument::fromJson(event).object().size();
        best.parseSeconds = std::min(best.parseSeconds, timer.nsecsElapsed() / 1e9);

        TelegramSession session([](const QString &, const TdObject &) {});
        timer.start();
        for (const QByteArray &event : events)
            session.handleResponse(event);
        best.chats = session.chats().size(); // the list as a view would read it after the sync
        best.handleSeconds = std::min(best.handleSeconds, timer.nsecsElapsed() / 1e9);
        if (objects == 0)
            std::printf("(nothing parsed)\n");
    }
    return best;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication application(argc, argv);
    QStandardPaths::setTestModeEnabled(true);
    const int rounds = argc > 1 ? std::max(1, atoi(argv[1])) : 3;
    if (argc > 2) { // one size only, for profiling
        const Figures only = measure(atoi(argv[2]), rounds);
        std::printf("%lld chats handled in %.1f ms\n", static_cast<long long>(only.chats), only.handleSeconds * 1e3);
        return 0;
    }

    const Figures small = measure(1000, rounds);
    const Figures large = measure(10000, rounds);
    for (const Figures &f : {small, large}) {
        std::printf("%6lld chats: %7lld events, handled in %7.1f ms (%8.0f events/s), parsing alone %6.1f ms, "
                    "handling/parsing %.2f\n",
                    static_cast<long long>(f.chats), static_cast<long long>(f.events), f.handleSeconds * 1e3,
                    f.events / f.handleSeconds, f.parseSeconds * 1e3, f.handleSeconds / f.parseSeconds);
    }
    std::printf("10,000-chat sync / 1,000-chat sync: %.1f (10 would be linear)\n",
                large.handleSeconds / small.handleSeconds);
    return 0;
}
