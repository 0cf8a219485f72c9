// Signing in to the demo account through the real loader, receive loop and session.
#include "../support/TemporaryHome.h"
#include "bundle/AppBundle.h"
#include "session/TelegramSession.h"

#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {
bool askedForThePhoneNumber(TelegramSession &session)
{
    session.setBundle(AppBundle(QStringLiteral(VOST_DEMO_BUNDLE)));
    session.start(12345, u"demo-hash"_s);
    return QTest::qWaitFor([&] { return session.step() == Step::phoneNumber(); }, 5000);
}

// Started, and past the phone number to the code that the demo sends.
bool askedForTheCode(TelegramSession &session, const QString &phoneNumber)
{
    if (!askedForThePhoneNumber(session))
        return false;
    session.submitPhoneNumber(phoneNumber);
    return QTest::qWaitFor([&] { return session.step() == Step::verificationCode(); }, 5000);
}
} // namespace

class DemoSignInTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_home.enter()); }

    void signsInWithCodeAndLogsOut()
    {
        TelegramSession session;
        QVERIFY(askedForTheCode(session, u"+1 555 0100"_s));
        session.submitVerificationCode(u"12345"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.errorMessageText(), u"PHONE_CODE_INVALID"_s, 5000);
        QCOMPARE(session.step(), Step::verificationCode());

        session.submitVerificationCode(u"22222"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::ready(), 5000);
        QTRY_COMPARE_WITH_TIMEOUT(session.currentAccountName(), u"Alex Demo"_s, 5000);
        QCOMPARE(session.currentAccountPhoneNumber(), u"15550100"_s);

        session.logOutAndChangeAccount();
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::phoneNumber(), 5000);
        QCOMPARE(session.currentAccountName(), QString());
    }

    void secondNumberAsksForThePassword()
    {
        TelegramSession session;
        QVERIFY(askedForTheCode(session, u"+15550101"_s));
        session.submitVerificationCode(u"22222"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::password(u"the app's name, then demo"_s), 5000);
        session.submitPassword(u"wrong"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.errorMessageText(), u"PASSWORD_HASH_INVALID"_s, 5000);
        session.submitPassword(u"vostdemo"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::ready(), 5000);
        session.logOutAndChangeAccount();
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::phoneNumber(), 5000);
    }

    void aDifferentNumberWhileWaitingForTheCode()
    {
        TelegramSession session;
        QVERIFY(askedForTheCode(session, u"+1 555 0101"_s));
        QCOMPARE(session.codeInfo().phoneNumber, u"+15550101"_s);
        QCOMPARE(session.codeInfo().delivery, CodeInfo::Delivery::TelegramApp);

        QSignalSpy codes(&session, &TelegramSession::codeInfoChanged);
        session.submitPhoneNumber(u"+1 555 0199"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.errorMessageText(), u"PHONE_NUMBER_INVALID"_s, 5000);
        QCOMPARE(session.step(), Step::verificationCode());
        QCOMPARE(codes.size(), 0);
        session.submitPhoneNumber(u"+1 555 0100"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.codeInfo().phoneNumber, u"+15550100"_s, 5000);
        QCOMPARE(codes.size(), 1);
        QCOMPARE(session.errorMessageText(), QString());
        // The code now signs in the new number, which has no password.
        session.submitVerificationCode(u"22222"_s);
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::ready(), 5000);
        QTRY_COMPARE_WITH_TIMEOUT(session.currentAccountPhoneNumber(), u"15550100"_s, 5000);
        session.logOutAndChangeAccount();
        QTRY_COMPARE_WITH_TIMEOUT(session.step(), Step::phoneNumber(), 5000);
    }

private:
    TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(DemoSignInTest)
#include "tst_demosignin.moc"
