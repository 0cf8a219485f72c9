// Which catalog the client speaks for the system's preferred languages and for
// the choice in the preferences, and what applying a choice changes: the stored
// choice, the default locale (dates, and the language code TDLib gets), the
// layout direction, the sign-in texts announced again, and the texts the session
// had already made for chats and messages made again in the new language.

#include "app/AppLanguage.h"
#include "app/LoginPresenter.h"
#include "session/TelegramSession.h"
#include "session/UserDefaults.h"

#include <QGuiApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSettings>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;

namespace {
// The few Russian texts the session's case needs: the catalogs are built into the
// program, not into this test.
class RussianTexts : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char *, const char *source, const char *, int) const override
    {
        static const QHash<QString, QString> texts{{u"Photo"_s, u"Фотография"_s},
                                                   {u"Yesterday"_s, u"Вчера"_s},
                                                   {u"Group"_s, u"Группа"_s},
                                                   {u"You"_s, u"Вы"_s}};
        return texts.value(QString::fromUtf8(source));
    }
};
} // namespace

class AppLanguageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
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

    void textsTheSessionMadeFollowASwitch()
    {
        AppLanguage &language = AppLanguage::shared();
        language.setChoice(u"en"_s);
        const QDateTime now = QDateTime::fromSecsSinceEpoch(1760000000);
        TelegramSession session([](const QString &, const TdObject &) {});
        session.setClock([now] { return now; });
        const qint64 yesterday = now.addDays(-1).toSecsSinceEpoch();
        const QJsonObject photo{{"@type"_L1, u"messagePhoto"_s},
                                {"caption"_L1, QJsonObject{{"@type"_L1, u"formattedText"_s}, {"text"_L1, u""_s}}}};
        const QJsonObject lastMessage{{"@type"_L1, u"message"_s},
                                      {"id"_L1, 10},
                                      {"chat_id"_L1, 7},
                                      {"date"_L1, yesterday},
                                      {"content"_L1, photo}};
        const QJsonObject chat{
            {"@type"_L1, u"chat"_s},
            {"id"_L1, 7},
            {"title"_L1, u"Hikers"_s},
            {"type"_L1, QJsonObject{{"@type"_L1, u"chatTypeBasicGroup"_s}, {"basic_group_id"_L1, 3}}},
            {"last_message"_L1, lastMessage},
            {"positions"_L1, QJsonArray{QJsonObject{{"@type"_L1, u"chatPosition"_s},
                                                    {"list"_L1, QJsonObject{{"@type"_L1, u"chatListMain"_s}}},
                                                    {"order"_L1, u"100"_s},
                                                    {"is_pinned"_L1, false}}}}};
        session.handleResponse(
            QJsonDocument(QJsonObject{{"@type"_L1, u"updateNewChat"_s}, {"chat"_L1, chat}}).toJson());
        QJsonObject own = lastMessage;
        own.insert("is_outgoing"_L1, true);
        session.handleResponse(
            QJsonDocument(QJsonObject{{"@type"_L1, u"updateNewMessage"_s}, {"message"_L1, own}}).toJson());
        QCOMPARE(session.chats().size(), 1);
        QCOMPARE(session.chats().first().preview, u"Photo"_s);
        QCOMPARE(session.chats().first().timestamp, u"Yesterday"_s);
        QCOMPARE(session.chats().first().subtitle, u"Group"_s);
        QCOMPARE(session.messagesByChat().value(u"7"_s).first().sender.name, u"You"_s);

        QSignalSpy chatsChanged(&session, &TelegramSession::chatsChanged);
        QSignalSpy messagesChanged(&session, &TelegramSession::messagesChanged);
        language.setChoice(u"ru"_s);
        RussianTexts russian;
        QCoreApplication::installTranslator(&russian);
        session.retranslate();
        QCOMPARE(session.chats().first().preview, u"Фотография"_s);
        QCOMPARE(session.chats().first().timestamp, u"Вчера"_s);
        QCOMPARE(session.chats().first().subtitle, u"Группа"_s);
        QCOMPARE(session.messagesByChat().value(u"7"_s).first().sender.name, u"Вы"_s);
        QVERIFY(!chatsChanged.isEmpty());
        QCOMPARE(messagesChanged.size(), 1);
        QCoreApplication::removeTranslator(&russian);
        language.setChoice(u"en"_s);
    }

private:
    QTemporaryDir m_settings;
};

QTEST_MAIN(AppLanguageTest)
#include "tst_applanguage.moc"
