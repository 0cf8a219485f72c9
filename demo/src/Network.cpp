// Losing and regaining the network on request, so that the client's connection
// line can be seen and tested: while the file named by VOST_DEMO_NETWORK_SWITCH
// exists, the account is offline.

#include "Client.h"

#include "Json.h"

#include <QFileInfo>

namespace demo {

namespace {
constexpr int kSwitchPollMs = 100;
// TDLib's way back: connecting, then catching up, then ready.
constexpr int kConnectingMs = 300;
constexpr int kUpdatingMs = 300;

QJsonObject connectionState(const char *type)
{
    return object("updateConnectionState", {{"state", object(type)}});
}
} // namespace

void Client::watchNetworkSwitch(const QString &path)
{
    const bool offline = QFileInfo::exists(path);
    if (offline != m_offline)
        networkSwitched(offline);
    after(kSwitchPollMs, [path](Client &client) { client.watchNetworkSwitch(path); });
}

void Client::networkSwitched(bool offline)
{
    m_offline = offline;
    const int change = ++m_networkChanges;
    if (offline) {
        update(connectionState("connectionStateWaitingForNetwork"));
        return;
    }
    update(connectionState("connectionStateConnecting"));
    after(kConnectingMs, [change](Client &client) {
        if (client.m_networkChanges != change)
            return;
        client.update(connectionState("connectionStateUpdating"));
        client.after(kUpdatingMs, [change](Client &again) {
            if (again.m_networkChanges == change)
                again.update(connectionState("connectionStateReady"));
        });
    });
}

} // namespace demo
