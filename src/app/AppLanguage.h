#pragma once

#include <QList>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QTranslator>
#include <QVariantList>
#include <QtQml/qqmlregistration.h>

#include <memory>

class QJSEngine;
class QQmlEngine;

// The language the client speaks: the system's (the first of its preferred
// languages with a catalog; English when an English one comes first or none has
// one) or the one chosen in the preferences, kept in the settings. Applying it
// installs the catalog, sets the default locale (dates, numbers and the language
// code TDLib gets), the layout direction, and retranslates the QML engines.
class AppLanguage : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    // "" follows the system; "en" or a catalog's code otherwise.
    Q_PROPERTY(QString choice READ choice WRITE setChoice NOTIFY choiceChanged)
    // {code, name} for English and each catalog, each named in its own language.
    Q_PROPERTY(QVariantList choices READ choices CONSTANT)
    // The language in effect: "" for English, else a catalog's code.
    Q_PROPERTY(QString language READ language NOTIFY languageChanged)
    Q_PROPERTY(bool isRightToLeft READ isRightToLeft NOTIFY languageChanged)

public:
    static AppLanguage &shared();
    static AppLanguage *create(QQmlEngine *engine, QJSEngine *);

    // The catalogs built into the program, by code ("pt_BR").
    static QStringList catalogs();
    // Which catalog speaks the first of `uiLanguages` (as QLocale::uiLanguages()
    // gives them, "pt-BR") that has one: the exact one first, then one of the same
    // language. "" (English, the texts' own language) when an English one comes
    // first or none has a catalog.
    static QString catalogFor(const QStringList &uiLanguages, const QStringList &catalogs);
    // The language a stored choice stands for: "" for English, else a catalog.
    // Unknown choices follow the system.
    static QString languageFor(const QString &choice, const QStringList &uiLanguages, const QStringList &catalogs);
    static QString nativeName(const QString &code);

    QString choice() const { return m_choice; }
    void setChoice(const QString &choice);
    QVariantList choices() const;
    // The language in effect: "" for English, else a catalog's code.
    QString language() const { return m_language; }
    bool isRightToLeft() const;

    // Reads the stored choice and applies it; run once at start-up, before the views.
    void load();

Q_SIGNALS:
    void choiceChanged();
    void languageChanged();

private:
    explicit AppLanguage(QObject *parent = nullptr);
    void apply();

    QString m_choice;
    QString m_language;
    std::unique_ptr<QTranslator> m_translator;
    std::unique_ptr<QTranslator> m_qtTranslator;
    QList<QPointer<QQmlEngine>> m_engines;
};
