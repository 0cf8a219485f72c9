#pragma once

// Each module registers the calls, states and input lines of its own part of the
// system with the driver.

#include <QJsonValue>
#include <QString>

class ReplayDriver;
class TelegramSession;

struct ReplayOptions {
    QString appStoreHost;
    QString appStoreLookup;
};

void registerSessionCalls(ReplayDriver &driver, TelegramSession &session);
void registerActionCalls(ReplayDriver &driver, TelegramSession &session);
void registerRenderCalls(ReplayDriver &driver, const ReplayOptions &options);
// The chat view model and the root view's glue around the session.
void registerViewModelCalls(ReplayDriver &driver, TelegramSession &session);
// Prints a "posted" line for each process-wide event.
void registerPostedEvents(ReplayDriver &driver);
// Sends the process-wide event of that name with its object, as the part of the
// program that owns it would.
void post(ReplayDriver &driver, const QString &name, const QJsonValue &object);
