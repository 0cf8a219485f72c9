// Loading the TDLib library: where it is looked for, what each failure says, and
// that the library is released once.

#include "tdlib/TDLibRuntime.h"

#include <QTest>

#include <dlfcn.h>

using namespace Qt::StringLiterals;

namespace {

QString errorText(const AppBundle &bundle)
{
    try {
        TDLibRuntime runtime(bundle);
    } catch (const TDLibRuntime::RuntimeError &error) {
        return error.errorDescription();
    }
    return {};
}

bool isLoaded(const QString &path)
{
    void *handle = dlopen(QFile::encodeName(path).constData(), RTLD_NOW | RTLD_NOLOAD);
    if (handle)
        dlclose(handle);
    return handle != nullptr;
}

} // namespace

class TDLibRuntimeTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void bundleWithoutLibraryFolder()
    {
        QTemporaryDir root;
        QCOMPARE(errorText(AppBundle(root.path())), u"TDLib is not bundled in this build."_s);
    }

    void absentLibraryGivesTheLoadersMessage()
    {
        const QString text = errorText(AppBundle(QStringLiteral(VOST_EMPTY_LIBRARY_BUNDLE)));
        QVERIFY2(text.startsWith(u"TDLib could not be loaded: "_s), qPrintable(text));
        QVERIFY2(text.contains(u"libtdjson.so"_s), qPrintable(text));
    }

    void notALibrary()
    {
        QTemporaryDir root;
        QDir(root.path()).mkpath(u"lib/vost"_s);
        QFile file(root.filePath(u"lib/vost/libtdjson.so"_s));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write("this is not an ELF file");
        file.close();
        QVERIFY(errorText(AppBundle(root.path())).startsWith(u"TDLib could not be loaded: "_s));
    }

    void firstMissingFunctionIsReported()
    {
        // This library lacks td_send and td_receive; resolution stops at td_send.
        QCOMPARE(errorText(AppBundle(QStringLiteral(VOST_PARTIAL_BUNDLE))),
                 u"TDLib is missing the required function td_send."_s);
    }

    void completeLibraryIsResolvedAndReleasedOnce()
    {
        const QString path = QStringLiteral(VOST_FAKE_BUNDLE) + "/lib/vost/libtdjson.so"_L1;
        QVERIFY(!isLoaded(path));
        {
            const TDLibRuntime runtime{AppBundle(QStringLiteral(VOST_FAKE_BUNDLE))};
            QVERIFY(isLoaded(path));
            QVERIFY(runtime.createClientID() > 0);
            QCOMPARE(runtime.receive(0.0), nullptr);
            QCOMPARE(QByteArray(runtime.execute("{}")), R"({"@type":"ok"})"_ba);
        }
        QVERIFY(!isLoaded(path));
    }
};

QTEST_GUILESS_MAIN(TDLibRuntimeTest)
#include "tst_tdlibruntime.moc"
