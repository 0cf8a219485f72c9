#pragma once

#include "bundle/AppBundle.h"

#include <QByteArray>
#include <QString>

// The one place that touches the TDLib JSON library. It is opened at run time from
// the bundle's private library folder, never linked, and stays open for the life of
// this object. Immutable after construction, so any thread may use it.
class TDLibRuntime
{
public:
    using CreateClientIDFunction = int (*)();
    using SendFunction = void (*)(int, const char *);
    using ReceiveFunction = const char *(*)(double);
    using ExecuteFunction = const char *(*)(const char *);

    class RuntimeError
    {
    public:
        enum class Kind { LibraryNotBundled, MissingFunction };

        static RuntimeError libraryNotBundled(QString loaderMessage = {})
        {
            return {Kind::LibraryNotBundled, std::move(loaderMessage)};
        }
        static RuntimeError missingFunction(QString name) { return {Kind::MissingFunction, std::move(name)}; }

        Kind kind() const { return m_kind; }
        QString payload() const { return m_payload; }
        QString errorDescription() const;

    private:
        RuntimeError(Kind kind, QString payload)
            : m_kind(kind)
            , m_payload(std::move(payload))
        {}
        Kind m_kind;
        QString m_payload;
    };

    // Throws RuntimeError when the library cannot be opened or lacks an entry point.
    explicit TDLibRuntime(const AppBundle &bundle);
    ~TDLibRuntime();
    TDLibRuntime(const TDLibRuntime &) = delete;
    TDLibRuntime &operator=(const TDLibRuntime &) = delete;

    static QString libraryFileName();

    void send(int clientID, const QByteArray &json) const;

    const CreateClientIDFunction createClientID;
    const ReceiveFunction receive;
    const ExecuteFunction execute;

private:
    struct Symbols;
    static Symbols load(const AppBundle &bundle);
    explicit TDLibRuntime(const Symbols &symbols);

    void *const m_handle;
    const SendFunction m_send;
};
