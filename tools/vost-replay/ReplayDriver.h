#pragma once

#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QObject>
#include <QQueue>

#include <cstdio>
#include <functional>

// Reads JSON Lines one at a time as they arrive, runs what each asks for, and
// writes JSON Lines, flushed after every line. Calls and states are registered
// by the modules that own them.
class ReplayDriver : public QObject
{
    Q_OBJECT

public:
    using Call = std::function<void(const QJsonArray &args)>;
    using StateReader = std::function<QJsonValue()>;
    using InputHandler = std::function<void(const QJsonValue &value)>;

    explicit ReplayDriver(FILE *output, QObject *parent = nullptr);

    void addCall(const QString &name, Call call);
    void addState(const QString &name, StateReader reader);
    // An input line {"KEY": VALUE} other than the driver's own keys.
    void addInput(const QString &key, InputHandler handler);

    void emitLine(const QJsonObject &line);
    void printResult(const QJsonValue &value) { emitLine({{QStringLiteral("result"), value}}); }
    void printError(const QString &text) { emitLine({{QStringLiteral("error"), text}}); }

    // A call whose outcome comes later holds the input; every hold is released once.
    void holdInput();
    void releaseInput();

    // Called (on this object's thread) for each line read, and once at the end.
    void feed(const QByteArray &line);
    void finishInput();

    // True while an {"event": ...} or {"raw": ...} line is being handled, so that
    // what the script injects can be told from what a library delivers.
    bool isInjectingEvent() const { return m_injectingEvent; }

Q_SIGNALS:
    void finished();

private:
    void processQueue();
    void process(const QByteArray &line);
    void runCall(const QJsonObject &line);
    void printState(const QJsonArray &names);
    void injectEvent(const InputHandler &handler, const QJsonValue &value);
    void waitFor(const QJsonObject &condition);

    FILE *m_output;
    QHash<QString, Call> m_calls;
    QHash<QString, StateReader> m_states;
    QHash<QString, InputHandler> m_inputs;
    QQueue<QByteArray> m_pending;
    int m_holds = 0;
    bool m_inputEnded = false;
    bool m_injectingEvent = false;
};
