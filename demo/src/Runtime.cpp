#include "Runtime.h"

#include "Client.h"
#include "Json.h"

#include <QJsonDocument>

#include <ctime>

using namespace Qt::StringLiterals;

namespace demo {

Runtime &Runtime::instance()
{
    // Never destroyed: the timer thread may outlive static destruction at exit.
    static Runtime *runtime = new Runtime;
    return *runtime;
}

bool Runtime::deterministic()
{
    static const bool value = qEnvironmentVariable("VOST_DEMO_DETERMINISTIC") == "1"_L1;
    return value;
}

int Runtime::now()
{
    if (deterministic()) {
        bool parsed = false;
        const int fixed = qEnvironmentVariable("VOST_DEMO_NOW").toInt(&parsed);
        return parsed ? fixed : 1760000000; // 9 October 2025, 08:53 UTC
    }
    return int(std::time(nullptr));
}

int Runtime::createClient()
{
    std::lock_guard world(m_mutex);
    if (!m_threadStarted) {
        std::thread([this] { runTimers(); }).detach();
        m_threadStarted = true;
    }
    const int id = ++m_lastClientID;
    auto client = std::make_unique<Client>(*this, id);
    Client &started = *client;
    m_clients[id] = std::move(client);
    started.start();
    return id;
}

void Runtime::send(int clientID, const char *request)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray(request ? request : ""), &parseError);
    if (!document.isObject()) {
        post(clientID, error(400, u"Failed to parse JSON object as TDLib request: "_s + parseError.errorString()));
        return;
    }
    if (!m_threadStarted) {
        std::lock_guard world(m_mutex);
        handleRequest(clientID, document.object());
        return;
    }
    // Handled on the library's own thread, as TDLib does: the caller never waits
    // for the work a request makes (thousands of chats, say).
    std::lock_guard queue(m_queueMutex);
    m_requests.emplace_back(clientID, document.object());
    m_workReady.notify_all();
}

void Runtime::handleRequest(int clientID, const QJsonObject &request)
{
    const auto it = m_clients.find(clientID);
    if (it == m_clients.end() || it->second->isClosed()) {
        QJsonObject answer = error(500, u"Request aborted"_s);
        if (request.contains("@extra"_L1))
            answer.insert("@extra"_L1, request.value("@extra"_L1));
        post(clientID, answer);
        return;
    }
    it->second->handle(request);
}

const char *Runtime::receive(double timeout)
{
    std::unique_lock queue(m_queueMutex);
    const auto deadline = Clock::now() + std::chrono::microseconds(qint64(std::max(0.0, timeout) * 1e6));
    if (!m_outputReady.wait_until(queue, deadline, [this] { return !m_output.empty(); }))
        return nullptr;
    m_current = std::move(m_output.front());
    m_output.pop_front();
    return m_current.c_str();
}

const char *Runtime::execute(const char *request)
{
    thread_local std::string result;
    const QJsonObject object = QJsonDocument::fromJson(QByteArray(request ? request : "")).object();
    const QString type = object.value("@type"_L1).toString();
    QJsonObject answer;
    if (type == "setLogVerbosityLevel"_L1 || type == "setLogStream"_L1 || type == "setLogTagVerbosityLevel"_L1)
        answer = ok();
    else if (type == "getLogVerbosityLevel"_L1)
        answer = demo::object("logVerbosityLevel", {{"verbosity_level", 1}});
    else if (type == "getOption"_L1 && object.value("name"_L1).toString() == "version"_L1)
        answer = demo::object("optionValueString", {{"value", u"1.8.67"_s}});
    else if (type.isEmpty())
        answer = error(400, u"Failed to parse JSON object as TDLib request"_s);
    else
        answer = error(400, u"The method can't be executed synchronously"_s);
    if (object.contains("@extra"_L1))
        answer.insert("@extra"_L1, object.value("@extra"_L1));
    result = QJsonDocument(answer).toJson(QJsonDocument::Compact).toStdString();
    return result.c_str();
}

void Runtime::post(int clientID, QJsonObject object)
{
    object.insert("@client_id"_L1, clientID);
    std::string text = QJsonDocument(object).toJson(QJsonDocument::Compact).toStdString();
    std::lock_guard queue(m_queueMutex);
    m_output.push_back(std::move(text));
    m_outputReady.notify_all();
}

void Runtime::schedule(int clientID, int delayMilliseconds, std::function<void(Client &)> task)
{
    const auto due = Clock::now() + std::chrono::milliseconds(delayMilliseconds);
    std::lock_guard queue(m_queueMutex);
    m_timers.emplace(std::make_pair(due, ++m_timerSequence), Timer{clientID, std::move(task)});
    m_workReady.notify_all();
}

void Runtime::runTimers()
{
    for (;;) {
        std::unique_lock queue(m_queueMutex);
        if (!m_requests.empty()) {
            const auto [clientID, request] = std::move(m_requests.front());
            m_requests.pop_front();
            queue.unlock();
            std::lock_guard world(m_mutex);
            handleRequest(clientID, request);
            continue;
        }
        if (m_timers.empty()) {
            m_workReady.wait(queue);
            continue;
        }
        const auto due = m_timers.begin()->first.first;
        if (Clock::now() < due) {
            m_workReady.wait_until(queue, due);
            continue;
        }
        Timer timer = std::move(m_timers.begin()->second);
        m_timers.erase(m_timers.begin());
        queue.unlock();
        std::lock_guard world(m_mutex);
        const auto it = m_clients.find(timer.clientID);
        if (it != m_clients.end() && !it->second->isClosed())
            timer.task(*it->second);
    }
}

} // namespace demo

extern "C" {

__attribute__((visibility("default"))) int td_create_client_id()
{
    return demo::Runtime::instance().createClient();
}

__attribute__((visibility("default"))) void td_send(int client_id, const char *request)
{
    demo::Runtime::instance().send(client_id, request);
}

__attribute__((visibility("default"))) const char *td_receive(double timeout)
{
    return demo::Runtime::instance().receive(timeout);
}

__attribute__((visibility("default"))) const char *td_execute(const char *request)
{
    return demo::Runtime::execute(request);
}
}
