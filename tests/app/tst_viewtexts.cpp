// What the sign-in and new-chat screens say for TDLib's errors, and phone
// numbers as the preferences show them.

#include "app/ErrorTexts.h"
#include "app/Formats.h"

#include <QTest>

using namespace Qt::StringLiterals;

class ViewTextsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void signInAndUsernameErrorsBecomeSentences_data()
    {
        QTest::addColumn<QString>("error");
        for (const char *error :
             {"PHONE_NUMBER_INVALID", "PHONE_CODE_INVALID", "PHONE_CODE_EXPIRED", "PASSWORD_HASH_INVALID",
              "USERNAME_NOT_OCCUPIED", "USERNAME_INVALID", "FLOOD_WAIT_120", "Too Many Requests: retry after 120"})
            QTest::newRow(error) << QString::fromLatin1(error);
    }

    void signInAndUsernameErrorsBecomeSentences()
    {
        QFETCH(QString, error);
        const QString sentence = ErrorTexts::sentence(error);
        QVERIFY2(sentence != error, qPrintable(sentence));
        QVERIFY2(sentence.endsWith(u'.'), qPrintable(sentence));
        QVERIFY(!sentence.contains(u'_'));
    }

    void eachErrorHasItsOwnSentence()
    {
        QCOMPARE(ErrorTexts::sentence(u"PHONE_CODE_INVALID"_s), u"That code isn’t right. Check it and try again."_s);
        QVERIFY(ErrorTexts::sentence(u"PHONE_NUMBER_INVALID"_s) != ErrorTexts::sentence(u"PHONE_CODE_INVALID"_s));
        QVERIFY(ErrorTexts::sentence(u"PASSWORD_HASH_INVALID"_s).contains(u"password"_s));
        QVERIFY(ErrorTexts::sentence(u"USERNAME_NOT_OCCUPIED"_s).contains(u"username"_s));
    }

    void otherTextsStayAsTheyCame()
    {
        for (const QString &text : {u"Internal Server Error"_s, u"PHONE_NUMBER_INVALID_SOMETHING"_s,
                                    u"The contact was saved, but the chat could not be opened."_s, QString()})
            QCOMPARE(ErrorTexts::sentence(text), text);
    }

    void phoneNumbersInInternationalForm_data()
    {
        QTest::addColumn<QString>("number");
        QTest::addColumn<QString>("shown");
        QTest::newRow("demo") << u"15550100"_s << u"+1 555 0100"_s;
        QTest::newRow("with plus") << u"+15550101"_s << u"+1 555 0101"_s;
        QTest::newRow("north america") << u"14155552671"_s << u"+1 415 555 2671"_s;
        QTest::newRow("united kingdom") << u"447700900123"_s << u"+44 7700 900123"_s;
        QTest::newRow("germany") << u"4915123456789"_s << u"+49 1512 3456789"_s;
        QTest::newRow("france") << u"33612345678"_s << u"+33 6 12 34 56 78"_s;
        QTest::newRow("russia") << u"79161234567"_s << u"+7 916 123 45 67"_s;
        QTest::newRow("india") << u"919876543210"_s << u"+91 98765 43210"_s;
        QTest::newRow("ukraine") << u"380501234567"_s << u"+380 50 123 45 67"_s;
        QTest::newRow("typed with separators") << u"+44 (7700) 900-123"_s << u"+44 7700 900123"_s;
        // An unusual length or country: the code, then groups of three, the last of up to four.
        QTest::newRow("uk, short") << u"44123456"_s << u"+44 123 456"_s;
        QTest::newRow("three-digit code") << u"3541234567"_s << u"+354 123 4567"_s;
        QTest::newRow("long") << u"999123456789012"_s << u"+999 123 456 789 012"_s;
        QTest::newRow("code only") << u"44"_s << u"+44"_s;
        QTest::newRow("one digit") << u"4"_s << u"+4"_s;
        QTest::newRow("no digits") << u"+"_s << QString();
        QTest::newRow("empty") << QString() << QString();
    }

    void phoneNumbersInInternationalForm()
    {
        QFETCH(QString, number);
        QFETCH(QString, shown);
        QCOMPARE(Formats::phoneNumber(number), shown);
    }
};

QTEST_GUILESS_MAIN(ViewTextsTest)
#include "tst_viewtexts.moc"
