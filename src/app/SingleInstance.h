#pragma once

#include <QObject>

#include <memory>

class QLocalServer;
class QLockFile;

// One running client per user and data folder (TDLib locks its database): the
// first launch listens on a local socket; a later one asks it to show itself.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(QObject *parent = nullptr);
    ~SingleInstance() override;

    // Per user and per data folder, so that tests with their own home folders do
    // not meet each other.
    static QString serverName();

    // Asks a running instance to show its popover; true when one answered.
    bool activateRunningInstance();
    // Holds the lock of the data folder for as long as this program runs, waiting a
    // few seconds for one that is closing to let go; false if it does not.
    bool waitForDatabase();
    // Becomes the running instance; false if another one holds the name. Stops
    // answering once the application is about to quit, so that a later launch
    // waits for the lock instead of asking a program on its way out.
    bool listen();

Q_SIGNALS:
    // token: the later launch's activation token, if its launcher gave one.
    void activationRequested(const QString &token);

private:
    QLocalServer *m_server = nullptr;
    std::unique_ptr<QLockFile> m_lock;
};
