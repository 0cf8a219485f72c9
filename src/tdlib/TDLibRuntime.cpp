#include "tdlib/TDLibRuntime.h"

#include <QCoreApplication>
#include <QFile>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

QString TDLibRuntime::RuntimeError::errorDescription() const
{
    switch (m_kind) {
    case Kind::LibraryNotBundled:
        if (m_payload.isEmpty())
            return QCoreApplication::translate("TDLibRuntime", "TDLib is not bundled in this build.");
        //: %1 is the system loader's own message.
        return QCoreApplication::translate("TDLibRuntime", "TDLib could not be loaded: %1").arg(m_payload);
    case Kind::MissingFunction:
        //: %1 is the name of a function of TDLib's library, such as td_create_client_id.
        return QCoreApplication::translate("TDLibRuntime", "TDLib is missing the required function %1.").arg(m_payload);
    }
    return {};
}

struct TDLibRuntime::Symbols {
    void *handle = nullptr;
    CreateClientIDFunction createClientID = nullptr;
    SendFunction send = nullptr;
    ReceiveFunction receive = nullptr;
    ExecuteFunction execute = nullptr;
};

namespace {

template<typename Function> Function resolve(void *handle, const char *name)
{
    // dlsym returns an object pointer; POSIX guarantees it converts to a function pointer.
    Function function = reinterpret_cast<Function>(dlsym(handle, name));
    if (!function)
        throw TDLibRuntime::RuntimeError::missingFunction(QString::fromLatin1(name));
    return function;
}

} // namespace

TDLibRuntime::Symbols TDLibRuntime::load(const AppBundle &bundle)
{
    const std::optional<QString> folder = bundle.privateLibraryFolder();
    if (!folder)
        throw TDLibRuntime::RuntimeError::libraryNotBundled();
    const QByteArray path = QFile::encodeName(*folder + u'/' + TDLibRuntime::libraryFileName());
    void *handle = dlopen(path.constData(), RTLD_NOW | RTLD_LOCAL);
    if (!handle) {
        const char *message = dlerror();
        throw TDLibRuntime::RuntimeError::libraryNotBundled(message ? QString::fromLocal8Bit(message) : QString());
    }
    // A missing symbol leaves the library open: the failure ends the session anyway.
    Symbols symbols;
    symbols.handle = handle;
    symbols.createClientID = resolve<decltype(symbols.createClientID)>(handle, "td_create_client_id");
    symbols.send = resolve<decltype(symbols.send)>(handle, "td_send");
    symbols.receive = resolve<decltype(symbols.receive)>(handle, "td_receive");
    symbols.execute = resolve<decltype(symbols.execute)>(handle, "td_execute");
    return symbols;
}

TDLibRuntime::TDLibRuntime(const AppBundle &bundle)
    : TDLibRuntime(load(bundle))
{}

TDLibRuntime::TDLibRuntime(const Symbols &symbols)
    : createClientID(symbols.createClientID)
    , receive(symbols.receive)
    , execute(symbols.execute)
    , m_handle(symbols.handle)
    , m_send(symbols.send)
{}

TDLibRuntime::~TDLibRuntime()
{
    dlclose(m_handle);
}

QString TDLibRuntime::libraryFileName()
{
#ifdef Q_OS_MACOS
    return u"libtdjson.dylib"_s;
#else
    return u"libtdjson.so"_s;
#endif
}

void TDLibRuntime::send(int clientID, const QByteArray &json) const
{
    // QByteArray keeps its data NUL-terminated.
    m_send(clientID, json.constData());
}
