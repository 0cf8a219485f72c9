#pragma once

#include <QHash>
#include <QObject>
#include <QSet>
#include <QStringList>

#include <memory>

class QTimer;

// Judges words with Hunspell's dictionaries as the system installs them: English
// always, the dictionary of the interface's language, and for a word in another
// writing system (Cyrillic, Arabic…) one of that script, preferring the
// interface's and the system's languages. A personal word list (one word a line)
// adds words to all of them.
//
// Dictionaries load in the background the first time a word of their script is
// judged (up to a second and 20 MB for a large one); until they are there such
// words are Unknown, and judgementsChanged() tells when to ask again. They stay
// while someone holds the checker and go shortly after the last one lets go.
// Verdicts are remembered, so judging a long text again costs little.
class SpellChecker : public QObject
{
    Q_OBJECT

public:
    enum class Verdict { Correct, Misspelt, Unknown };

    // The dictionaries in `dictionaryFolders` (pairs of NAME.aff and NAME.dic,
    // named like "en_US" or "fa"), the personal list in the file `personalList`.
    SpellChecker(QStringList dictionaryFolders, QString personalList, QObject *parent = nullptr);
    ~SpellChecker() override;

    // The system's dictionaries and the list under the user's data folder.
    static SpellChecker &shared();
    static QStringList systemDictionaryFolders();
    static QString defaultPersonalList();

    // "" or "en" for English, else a language code such as "de" or "pt_BR".
    void setInterfaceLanguage(const QString &code);
    // The system's preferred languages, as QLocale::uiLanguages() gives them.
    void setPreferredLanguages(const QStringList &languages);

    // The installed dictionaries by name ("de_DE", "fa").
    QStringList installedDictionaries() const;

    // A word as typed (one of SpellingWords::checkable()).
    Verdict check(const QString &word);
    // Up to `most` corrections for a misspelt word, best first; none while its
    // dictionaries are still loading.
    QStringList suggestions(const QString &word, int most = 5);
    // Adds the word to the personal list, which takes effect at once; false when
    // it cannot be kept (nothing of a word, or the file cannot be written).
    bool addToPersonalList(const QString &word);

    // Keeps the loaded dictionaries while a text is being checked.
    void hold();
    void release();
    // Whether any dictionary is loaded or loading: for tests and diagnostics.
    bool hasDictionaries() const;

Q_SIGNALS:
    // A dictionary arrived or the personal list grew: words may be judged otherwise now.
    void judgementsChanged();

private:
    struct Dictionary;

    QString dictionaryFor(const QString &code) const;
    QStringList dictionariesForScript(int script) const;
    void load(const QString &name);
    void dropDictionaries();
    void readPersonalList();
    bool isPersonal(const QString &word) const;

    QStringList m_folders;
    QString m_personalList;
    // name → its .aff file; read once, when first needed.
    mutable QHash<QString, QString> m_installed;
    mutable bool m_scanned = false;
    QString m_interfaceLanguage;
    QStringList m_preferredLanguages;
    // name → loaded dictionary, or null when it could not be read.
    QHash<QString, std::shared_ptr<Dictionary>> m_dictionaries;
    QSet<QString> m_loading;
    QSet<QString> m_personal;
    bool m_personalRead = false;
    QHash<QString, bool> m_verdicts;
    int m_holders = 0;
    // Dropping the dictionaries starts a new generation: loads of an older one are thrown away.
    int m_generation = 0;
    QTimer *m_dropTimer;
};
