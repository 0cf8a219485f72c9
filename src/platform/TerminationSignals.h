#pragma once

#include <QObject>

// SIGTERM, SIGINT and SIGHUP (a service manager stopping us, Ctrl+C, the terminal
// going away) as a signal in the event loop, so the program quits the ordinary way
// and closes its database instead of dying with it open.
class TerminationSignals : public QObject
{
    Q_OBJECT

public:
    explicit TerminationSignals(QObject *parent = nullptr);
    ~TerminationSignals() override;

Q_SIGNALS:
    void received(int signalNumber);

private:
    void readPending();
};
