#pragma once

#include <QObject>

class QLocalServer;

// One running client per user and data folder (TDLib locks its database): the
// first launch listens on a local socket; a later one asks it to show itself.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(QObject *parent = nullptr);

    // Per user and per data folder, so that tests with their own home folders do
    // not meet each other.
    static QString serverName();

    // Asks a running instance to show its popover; true when one answered.
    bool activateRunningInstance();
    // Becomes the running instance; false if another one holds the name.
    bool listen();

Q_SIGNALS:
    void activationRequested();

private:
    QLocalServer *m_server = nullptr;
};
