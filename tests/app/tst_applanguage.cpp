// Which catalog the client speaks for the system's preferred languages and for
// the choice in the preferences, and what applying a choice changes: the stored
// choice, the default locale (dates, and the language code TDLib gets), the
// layout direction, and the sign-in texts announced again.

#include "app/AppLanguage.h"
#include "app/LoginPresenter.h"
#include "session/UserDefaults.h"

#include <QGuiApplication>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

class AppLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QStandardPaths::setTestModeEnabled(true);
        QVERIFY(m_settings.isValid());
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_settings.path());
    }

    void systemLanguagesPickACatalog_data()
    {
        QTest::addColumn<QStringList>("uiLanguages");
        QTest::addColumn<QString>("catalog");
        QTest::newRow("russian") << QStringList{u"ru-RU"_s, u"ru"_s, u"en-US"_s} << u"ru"_s;
        QTest::newRow("english first") << QStringList{u"en-US"_s, u"ru-RU"_s} << QString();
        QTest::newRow("english only") << QStringList{u"en-GB"_s} << QString();
        QTest::newRow("brazilian") << QStringList{u"pt-BR"_s, u"pt"_s} << u"pt_BR"_s;
        QTest::newRow("other portuguese") << QStringList{u"pt-PT"_s} << u"pt_BR"_s;
        QTest::newRow("austrian german") << QStringList{u"de_AT"_s} << u"de"_s;
        QTest::newRow("mexican spanish") << QStringList{u"es-MX"_s} << u"es"_s;
        QTest::newRow("persian") << QStringList{u"fa-IR"_s, u"fa"_s} << u"fa"_s;
        QTest::newRow("no catalog, then german") << QStringList{u"fr-FR"_s, u"fr"_s, u"de-DE"_s} << u"de"_s;
        QTest::newRow("german before english") << QStringList{u"de"_s, u"en"_s} << u"de"_s;
        QTest::newRow("no catalog at all") << QStringList{u"fr-FR"_s, u"zh-Hans-CN"_s} << QString();
        QTest::newRow("the C locale") << QStringList{u"C"_s} << QString();
        QTest::newRow("nothing") << QStringList{} << QString();
        QTest::newRow("blank") << QStringList{QString(), u"-"_s, u"es"_s} << u"es"_s;
    }

    void systemLanguagesPickACatalog()
    {
        QFETCH(QStringList, uiLanguages);
        QFETCH(QString, catalog);
        QCOMPARE(AppLanguage::catalogFor(uiLanguages, AppLanguage::catalogs()), catalog);
    }

    void aChoiceOverridesTheSystem()
    {
        const QStringList russian{u"ru-RU"_s};
        const QStringList catalogs = AppLanguage::catalogs();
        QCOMPARE(AppLanguage::languageFor(QString(), russian, catalogs), u"ru"_s);
        QCOMPARE(AppLanguage::languageFor(u"en"_s, russian, catalogs), QString());
        QCOMPARE(AppLanguage::languageFor(u"pt_BR"_s, russian, catalogs), u"pt_BR"_s);
        // A choice the program no longer has a catalog for follows the system.
        QCOMPARE(AppLanguage::languageFor(u"it"_s, russian, catalogs), u"ru"_s);
        QCOMPARE(AppLanguage::languageFor(u"pt"_s, {u"en-US"_s}, catalogs), QString());
    }

    void languagesAreNamedInTheirOwnWords()
    {
        QCOMPARE(AppLanguage::nativeName(u"en"_s), u"English"_s);
        QCOMPARE(AppLanguage::nativeName(u"ru"_s), u"Русский"_s);
        QCOMPARE(AppLanguage::nativeName(u"de"_s), u"Deutsch"_s);
        QCOMPARE(AppLanguage::nativeName(u"es"_s), u"Español"_s);
        QCOMPARE(AppLanguage::nativeName(u"pt_BR"_s), u"Português (Brasil)"_s);
        QCOMPARE(AppLanguage::nativeName(u"fa"_s), u"فارسی"_s);
        QStringList codes;
        for (const QVariant &choice : AppLanguage::shared().choices())
            codes.append(choice.toMap().value(u"code"_s).toString());
        QCOMPARE(codes, (QStringList{u"en"_s, u"ru"_s, u"de"_s, u"es"_s, u"pt_BR"_s, u"fa"_s}));
    }

    void choosingALanguageAppliesItAtOnce()
    {
        AppLanguage &language = AppLanguage::shared();
        language.load();
        LoginPresenter presenter;
        QSignalSpy changed(&language, &AppLanguage::languageChanged);
        QSignalSpy retitled(&presenter, &LoginPresenter::stepChanged);

        language.setChoice(u"fa"_s);
        QCOMPARE(language.choice(), u"fa"_s);
        QCOMPARE(language.language(), u"fa"_s);
        QCOMPARE(UserDefaults::value(u"vostLanguage"_s).toString(), u"fa"_s);
        QCOMPARE(QLocale().language(), QLocale::Persian);
        QVERIFY(language.isRightToLeft());
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::RightToLeft);
        QCOMPARE(changed.size(), 1);
        // Installing and removing catalogs reaches the presenter as LanguageChange.
        QVERIFY(!retitled.isEmpty());

        language.setChoice(u"de"_s);
        QCOMPARE(QLocale().language(), QLocale::German);
        QVERIFY(!language.isRightToLeft());
        QCOMPARE(QGuiApplication::layoutDirection(), Qt::LeftToRight);

        language.setChoice(u"en"_s);
        QCOMPARE(language.language(), QString());
        QCOMPARE(QLocale().language(), QLocale::English);

        // Nonsense is not stored: the client follows the system again.
        language.setChoice(u"xx"_s);
        QCOMPARE(language.choice(), QString());
        QCOMPARE(UserDefaults::value(u"vostLanguage"_s).toString(), QString());
        QCOMPARE(QLocale(), QLocale::system());
    }

    void theStoredChoiceIsReadAtStart()
    {
        UserDefaults::setValue(u"vostLanguage"_s, u"es"_s);
        AppLanguage::shared().load();
        QCOMPARE(AppLanguage::shared().choice(), u"es"_s);
        QCOMPARE(QLocale().language(), QLocale::Spanish);
        UserDefaults::setValue(u"vostLanguage"_s, u"klingon"_s);
        AppLanguage::shared().load();
        QCOMPARE(AppLanguage::shared().choice(), QString());
        QCOMPARE(QLocale(), QLocale::system());
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(AppLanguageTest)
#include "tst_applanguage.moc"
