// The real TDLib from the build tree: the session loads it, submits its parameters
// and reaches the phone-number step (TDLib gets there without a network), then
// quits cleanly, releasing the database for the next client.

#include "session/TelegramSession.h"

#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class RealTDLibTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        // A home of our own: the test-mode data folder lives under it.
        QVERIFY(m_home.isValid());
        qputenv("HOME", QFile::encodeName(m_home.path()));
        QStandardPaths::setTestModeEnabled(true);
    }

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

private:
    QTemporaryDir m_home;
};

QTEST_GUILESS_MAIN(RealTDLibTest)
#include "tst_realtdlib.moc"
