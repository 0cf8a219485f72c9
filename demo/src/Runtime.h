#pragma once

#include <QJsonObject>

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <string>
#include <thread>

namespace demo {

class Client;

// The process-wide state behind TDLib's four JSON entry points: the clients, the
// queue of answers and updates that td_receive hands out, and the timers of the
// simulated world, which run on one internal thread. Every client is touched only
// with the world's mutex held; the queues have a mutex of their own, so that, as
// with TDLib, td_send and td_receive never wait for the work of a request or a
// timer (drawing a thousand avatars, say).
class Runtime
{
public:
    static Runtime &instance();

    int createClient();
    void send(int clientID, const char *request);
    const char *receive(double timeout);
    static const char *execute(const char *request);

    // They take the queues' mutex, so a client calls them with the world's held.
    void post(int clientID, QJsonObject object);
    void schedule(int clientID, int delayMilliseconds, std::function<void(Client &)> task);

    // VOST_DEMO_DETERMINISTIC=1: fixed clock and timing, no spontaneous activity.
    static bool deterministic();
    // Unix seconds; VOST_DEMO_NOW in deterministic mode.
    static int now();

private:
    Runtime() = default;
    void runTimers();
    // With the world's mutex held.
    void handleRequest(int clientID, const QJsonObject &request);

    using Clock = std::chrono::steady_clock;
    struct Timer {
        int clientID = 0;
        std::function<void(Client &)> task;
    };

    // The world: the clients. Taken before the queues' mutex, never after it.
    std::mutex m_mutex;
    std::map<int, std::unique_ptr<Client>> m_clients;
    int m_lastClientID = 0;

    // The queues between the callers and the library's thread.
    std::mutex m_queueMutex;
    std::condition_variable m_outputReady;
    std::condition_variable m_workReady;
    std::deque<std::string> m_output;
    std::string m_current;
    std::map<std::pair<Clock::time_point, quint64>, Timer> m_timers;
    // Requests wait for the library's thread, in the order they were sent.
    std::deque<std::pair<int, QJsonObject>> m_requests;
    quint64 m_timerSequence = 0;

    // The library's one thread, which handles requests and timers; started with
    // the first client and never stopped.
    std::atomic<bool> m_threadStarted = false;
};

} // namespace demo
