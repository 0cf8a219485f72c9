#include "AppLanguage.h"

#include "session/UserDefaults.h"

#include <QCoreApplication>
#include <QGuiApplication>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QQmlEngine>

using namespace Qt::StringLiterals;

namespace {
const QString choiceKey = u"vostLanguage"_s;
const QString english = u"en"_s;

// "pt-BR" and "pt_BR" alike: the language and, when given, the territory.
QString catalogCode(const QString &uiLanguage)
{
    QString code = uiLanguage;
    code.replace(u'-', u'_');
    return code;
}

QString languagePart(const QString &code)
{
    return code.section(u'_', 0, 0).toLower();
}
} // namespace

AppLanguage::AppLanguage(QObject *parent)
    : QObject(parent)
{}

AppLanguage &AppLanguage::shared()
{
    static AppLanguage *language = new AppLanguage(QCoreApplication::instance());
    return *language;
}

AppLanguage *AppLanguage::create(QQmlEngine *engine, QJSEngine *)
{
    AppLanguage &language = shared();
    QJSEngine::setObjectOwnership(&language, QJSEngine::CppOwnership);
    language.m_engines.removeAll(nullptr);
    if (engine && !language.m_engines.contains(engine))
        language.m_engines.append(engine);
    return &language;
}

QStringList AppLanguage::catalogs()
{
    return {u"ru"_s, u"de"_s, u"es"_s, u"pt_BR"_s, u"fa"_s};
}

QString AppLanguage::catalogFor(const QStringList &uiLanguages, const QStringList &catalogs)
{
    for (const QString &uiLanguage : uiLanguages) {
        const QString code = catalogCode(uiLanguage);
        const QString language = languagePart(code);
        if (language.isEmpty() || language == "c"_L1)
            continue;
        if (language == english)
            return {};
        for (const QString &catalog : catalogs) {
            if (catalog.compare(code, Qt::CaseInsensitive) == 0)
                return catalog;
        }
        // Another variety of the language beats a language further down the list.
        for (const QString &catalog : catalogs) {
            if (languagePart(catalog) == language)
                return catalog;
        }
    }
    return {};
}

QString AppLanguage::languageFor(const QString &choice, const QStringList &uiLanguages, const QStringList &catalogs)
{
    if (choice == english)
        return {};
    if (catalogs.contains(choice))
        return choice;
    return catalogFor(uiLanguages, catalogs);
}

QString AppLanguage::nativeName(const QString &code)
{
    // Fixed: QLocale's own names carry territories ("Español de España") and case
    // that vary with its data.
    static const QHash<QString, QString> names{{english, u"English"_s},
                                               {u"ru"_s, u"Русский"_s},
                                               {u"de"_s, u"Deutsch"_s},
                                               {u"es"_s, u"Español"_s},
                                               {u"pt_BR"_s, u"Português (Brasil)"_s},
                                               {u"fa"_s, u"فارسی"_s}};
    return names.value(code, code);
}

void AppLanguage::setChoice(const QString &choice)
{
    const QString known = choice == english || catalogs().contains(choice) ? choice : QString();
    if (known == m_choice)
        return;
    m_choice = known;
    UserDefaults::setValue(choiceKey, m_choice);
    Q_EMIT choiceChanged();
    apply();
}

QVariantList AppLanguage::choices() const
{
    QVariantList list;
    for (const QString &code : QStringList{english} + catalogs())
        list.append(QVariantMap{{u"code"_s, code}, {u"name"_s, nativeName(code)}});
    return list;
}

bool AppLanguage::isRightToLeft() const
{
    return !m_language.isEmpty() && QLocale(m_language).textDirection() == Qt::RightToLeft;
}

void AppLanguage::load()
{
    const QString stored = UserDefaults::value(choiceKey).toString();
    m_choice = stored == english || catalogs().contains(stored) ? stored : QString();
    apply();
}

void AppLanguage::apply()
{
    const QLocale system = QLocale::system();
    m_language = languageFor(m_choice, system.uiLanguages(), catalogs());

    if (m_translator)
        QCoreApplication::removeTranslator(m_translator.get());
    if (m_qtTranslator)
        QCoreApplication::removeTranslator(m_qtTranslator.get());
    m_translator.reset();
    m_qtTranslator.reset();
    if (!m_language.isEmpty()) {
        auto translator = std::make_unique<QTranslator>();
        if (translator->load(u":/i18n/vost_"_s + m_language + u".qm"_s)) {
            QCoreApplication::installTranslator(translator.get());
            m_translator = std::move(translator);
        }
        // Qt's own texts (the file dialogs, a field's context menu), where installed.
        auto qtTranslator = std::make_unique<QTranslator>();
        if (qtTranslator->load(QLocale(m_language), u"qtbase"_s, u"_"_s,
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            QCoreApplication::installTranslator(qtTranslator.get());
            m_qtTranslator = std::move(qtTranslator);
        }
    }

    // Dates and numbers speak the chosen language; following the system keeps its
    // locale, formats and all.
    if (m_choice.isEmpty())
        QLocale::setDefault(system);
    else if (m_choice == english)
        QLocale::setDefault(system.language() == QLocale::English ? system : QLocale(QLocale::English));
    else
        QLocale::setDefault(QLocale(m_language));

    if (qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        QGuiApplication::setLayoutDirection(isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight);
    m_engines.removeAll(nullptr);
    for (const QPointer<QQmlEngine> &engine : std::as_const(m_engines))
        engine->retranslate();
    Q_EMIT languageChanged();
}
