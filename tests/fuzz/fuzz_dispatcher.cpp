// TDLib's events, any bytes, one per line, into a signed-in session with the chat
// view model attached, as they would come from the receive loop.

#include "AppRootView.h"
#include "session/CredentialStore.h"
#include "session/TelegramSession.h"

#include <QCoreApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <cstddef>
#include <cstdint>

using namespace Qt::StringLiterals;

extern "C" int LLVMFuzzerInitialize(int *argc, char ***argv)
{
    static QCoreApplication application(*argc, *argv);
    QStandardPaths::setTestModeEnabled(true);
    static QTemporaryDir settings;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    TelegramSession session([](const QString &, const TdObject &) {});
    CredentialStore credentials({});
    AppRootView root(credentials, session);
    root.start();
    session.handleResponse(
        R"({"@type":"updateAuthorizationState","authorization_state":{"@type":"authorizationStateReady"}})"_ba);
    const QByteArray input(reinterpret_cast<const char *>(data), qsizetype(size));
    for (const QByteArray &line : input.split('\n'))
        session.handleResponse(line);
    root.applyPendingChanges();
    QCoreApplication::sendPostedEvents();
    session.shutDown();
    return 0;
}
