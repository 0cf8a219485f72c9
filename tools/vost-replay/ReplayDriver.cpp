#include "ReplayDriver.h"

#include "JsonMatch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QJsonDocument>
#include <QTimer>

using namespace Qt::StringLiterals;

namespace {

// How long a wait_for line waits unless it says, and how often it looks.
constexpr int defaultWaitForTimeoutMs = 10000;
constexpr int waitForIntervalMs = 5;

} // namespace

ReplayDriver::ReplayDriver(FILE *output, QObject *parent)
    : QObject(parent)
    , m_output(output)
{}

void ReplayDriver::addCall(const QString &name, Call call)
{
    m_calls.insert(name, std::move(call));
}

void ReplayDriver::addState(const QString &name, StateReader reader)
{
    m_states.insert(name, std::move(reader));
}

void ReplayDriver::addInput(const QString &key, InputHandler handler)
{
    m_inputs.insert(key, std::move(handler));
}

void ReplayDriver::emitLine(const QJsonObject &line)
{
    const QByteArray text = QJsonDocument(line).toJson(QJsonDocument::Compact) + '\n';
    std::fwrite(text.constData(), 1, size_t(text.size()), m_output);
    std::fflush(m_output);
}

void ReplayDriver::holdInput()
{
    ++m_holds;
}

void ReplayDriver::releaseInput()
{
    if (m_holds == 0)
        return;
    --m_holds;
    // Continue from the event loop, not from inside whatever released the hold.
    QTimer::singleShot(0, this, &ReplayDriver::processQueue);
}

void ReplayDriver::feed(const QByteArray &line)
{
    m_pending.enqueue(line);
    processQueue();
}

void ReplayDriver::finishInput()
{
    m_inputEnded = true;
    processQueue();
}

void ReplayDriver::processQueue()
{
    while (m_holds == 0 && !m_pending.isEmpty())
        process(m_pending.dequeue());
    if (m_holds == 0 && m_pending.isEmpty() && m_inputEnded) {
        m_inputEnded = false;
        Q_EMIT finished();
    }
}

void ReplayDriver::process(const QByteArray &line)
{
    if (line.trimmed().isEmpty())
        return;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(line, &error);
    if (!document.isObject()) {
        printError(u"unreadable input line: "_s + QString::fromUtf8(line.trimmed()));
        return;
    }
    const QJsonObject object = document.object();
    if (object.contains("event"_L1)) {
        const QJsonValue event = object.value("event"_L1);
        const QJsonDocument eventDocument =
            event.isArray() ? QJsonDocument(event.toArray()) : QJsonDocument(event.toObject());
        // The same path as a raw line: the object as TDLib would have written it.
        if (const auto raw = m_inputs.constFind(u"raw"_s); raw != m_inputs.cend())
            injectEvent(*raw, QString::fromUtf8(eventDocument.toJson(QJsonDocument::Compact)));
    } else if (object.contains("call"_L1)) {
        runCall(object);
    } else if (object.contains("state"_L1)) {
        printState(object.value("state"_L1).toArray());
    } else if (object.contains("wait_ms"_L1)) {
        holdInput();
        QTimer::singleShot(object.value("wait_ms"_L1).toInt(), this, &ReplayDriver::releaseInput);
    } else if (object.contains("wait_for"_L1)) {
        waitFor(object.value("wait_for"_L1).toObject());
    } else if (object.contains("echo"_L1)) {
        emitLine({{"echo"_L1, object.value("echo"_L1)}});
    } else if (object.contains("expect"_L1) || object.contains("comment"_L1) || object.contains("options"_L1)) {
        // Expected output, notes and options for the test runner; nothing to do here.
    } else {
        for (auto it = object.begin(); it != object.end(); ++it) {
            if (const auto handler = m_inputs.constFind(it.key()); handler != m_inputs.cend()) {
                if (it.key() == "raw"_L1)
                    injectEvent(*handler, it.value());
                else
                    (*handler)(it.value());
                return;
            }
        }
        printError(u"unknown input line: "_s + QString::fromUtf8(line.trimmed()));
    }
}

void ReplayDriver::runCall(const QJsonObject &line)
{
    const QString name = line.value("call"_L1).toString();
    const auto call = m_calls.constFind(name);
    if (call == m_calls.cend()) {
        printError(u"unknown call "_s + name);
        return;
    }
    (*call)(line.value("args"_L1).toArray());
}

void ReplayDriver::printState(const QJsonArray &names)
{
    QJsonObject state;
    for (const QJsonValue &name : names) {
        const auto reader = m_states.constFind(name.toString());
        state.insert(name.toString(), reader == m_states.cend() ? QJsonValue(u"unknown state"_s) : (*reader)());
    }
    emitLine({{"state"_L1, state}});
}

void ReplayDriver::injectEvent(const InputHandler &handler, const QJsonValue &value)
{
    m_injectingEvent = true;
    handler(value);
    m_injectingEvent = false;
}

void ReplayDriver::waitFor(const QJsonObject &condition)
{
    const QString name = condition.value("state"_L1).toString();
    const auto found = m_states.constFind(name);
    if (found == m_states.cend() || !condition.contains("equals"_L1)) {
        printError(u"wait_for needs a known state and a value: "_s + compactJson(condition));
        return;
    }
    const StateReader reader = *found;
    const QJsonValue expected = condition.value("equals"_L1);
    if (jsonMatches(expected, reader()))
        return;
    const int timeout = condition.value("timeout_ms"_L1).toInt(defaultWaitForTimeoutMs);
    holdInput();
    // Looked at between events, never while one is being handled, so that the
    // lines an event prints all come before the script goes on.
    auto *poll = new QTimer(this);
    poll->setInterval(waitForIntervalMs);
    QElapsedTimer elapsed;
    elapsed.start();
    connect(poll, &QTimer::timeout, this, [this, poll, reader, expected, name, timeout, elapsed] {
        const QJsonValue actual = reader();
        const bool met = jsonMatches(expected, actual);
        if (!met && !elapsed.hasExpired(timeout))
            return;
        if (!met) {
            printError(u"wait_for timed out after %1 ms: %2 is %3, not %4"_s.arg(timeout).arg(name, compactJson(actual),
                                                                                              compactJson(expected)));
        }
        poll->stop();
        poll->deleteLater();
        releaseInput();
    });
    poll->start();
}
