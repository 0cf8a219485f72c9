// The real TDLib from the build tree: the session loads it, submits its parameters
// and reaches the phone-number step (TDLib gets there without a network), then
// quits cleanly, releasing the database for the next client; a corrupt database
// folder leads there too.

#include "../support/TemporaryHome.h"
#include "session/TelegramSession.h"

#include <QDir>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class RealTDLibTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_home.enter()); }

    void reachesThePhoneNumberStepAndQuits()
    {
        for (int run = 0; run < 2; ++run) {
            TelegramSession session;
            session.setBundle(AppBundle(QStringLiteral(VOST_BUILD_ROOT)));
            session.start(94575, u"a3406de8d171bb422bb6ddf3bbd800e2"_s);
            QCOMPARE(session.step(), Step::starting());
            QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::phoneNumber(), 15000);
            QVERIFY(!session.errorMessage());
            session.shutDown();
        }
        QVERIFY(QFileInfo::exists(m_home.path() + "/.qttest/share/Corvella/TDLib/Files"_L1));
    }

    // A database folder whose files are garbage: TDLib drops them and the account
    // starts afresh at the sign-in, not a crash or a client that waits forever.
    void corruptDatabaseGivesAClearOutcome()
    {
        const QString folder = m_home.path() + "/.qttest/share/Corvella/TDLib"_L1;
        QDir(folder).removeRecursively();
        QVERIFY(QDir().mkpath(folder + "/Files"_L1));
        for (const char *name : {"td.binlog", "db.sqlite"}) {
            QFile file(folder + u'/' + QLatin1StringView(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(QByteArray(64 * 1024, '\xA5'));
        }
        TelegramSession session;
        session.setBundle(AppBundle(QStringLiteral(VOST_BUILD_ROOT)));
        session.start(94575, u"a3406de8d171bb422bb6ddf3bbd800e2"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::phoneNumber(), 20000);
        QVERIFY(!session.errorMessage());
        session.shutDown();
    }

private:
    TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(RealTDLibTest)
#include "tst_realtdlib.moc"
