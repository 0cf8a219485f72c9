#pragma once

// Each module registers the calls, states and input lines of its own part of the
// system with the driver.

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
