#include "SpellChecker.h"

#include "spelling/SpellingWords.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QStringDecoder>
#include <QStringEncoder>
#include <QTimer>
#include <QtConcurrent/QtConcurrentRun>

#include <hunspell.hxx>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

// So many remembered verdicts are far more than a long message holds.
constexpr qsizetype mostVerdicts = 50000;

// A dictionary's name: a language, perhaps with a country ("fa", "en_US").
// Variants ("de_DE_frami") and other files of the folder (hyphenation
// patterns, thesauri) are left alone.
bool isDictionaryName(const QString &name)
{
    static const QRegularExpression pattern(u"^[a-z]{2,3}(_[A-Z]{2})?$"_s);
    return pattern.match(name).hasMatch();
}

// The writing system a language is written in, as the words' QChar::Script: the
// script of the first letter of the language's own name for itself ("русский",
// "עברית", "English"); unknown for a language Qt does not know.
int scriptOfLanguage(const QString &name)
{
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return QChar::Script_Unknown;
    for (const QChar c : locale.nativeLanguageName()) {
        if (c.isLetter())
            return c.script();
    }
    return QChar::Script_Unknown;
}

// Only the first letter in capitals, as at the start of a sentence.
bool isCapitalised(const QString &word)
{
    return word.size() > 1 && word.at(0).isUpper() && word.sliced(1) == word.sliced(1).toLower();
}

} // namespace

struct SpellChecker::Dictionary {
    std::unique_ptr<Hunspell> hunspell;
    QStringConverter::Encoding encoding = QStringConverter::Utf8;

    std::string encode(const QString &word) const
    {
        QStringEncoder encoder(encoding);
        const QByteArray bytes = encoder(word);
        return {bytes.constData(), size_t(bytes.size())};
    }

    QString decode(const std::string &bytes) const
    {
        QStringDecoder decoder(encoding);
        return decoder(QByteArrayView(bytes.data(), qsizetype(bytes.size())));
    }

    bool spell(const QString &word) const { return hunspell->spell(encode(word)); }

    QStringList suggest(const QString &word) const
    {
        QStringList found;
        for (const std::string &suggestion : hunspell->suggest(encode(word)))
            found.append(decode(suggestion));
        return found;
    }

    // Reading a dictionary takes long: this runs away from the main thread.
    static std::shared_ptr<Dictionary> read(const QString &affix)
    {
        const QString words = affix.chopped(4) + ".dic"_L1;
        // Hunspell takes a file it cannot read for an empty dictionary.
        if (!QFileInfo(affix).isReadable() || !QFileInfo(words).isReadable())
            return {};
        auto dictionary = std::make_shared<Dictionary>();
        dictionary->hunspell =
            std::make_unique<Hunspell>(QFile::encodeName(affix).constData(), QFile::encodeName(words).constData());
        const char *name = dictionary->hunspell->get_dic_encoding();
        const std::optional<QStringConverter::Encoding> encoding =
            QStringConverter::encodingForName(name != nullptr ? name : "");
        if (!encoding)
            return {};
        dictionary->encoding = *encoding;
        return dictionary;
    }
};

SpellChecker::SpellChecker(QStringList dictionaryFolders, QString personalList, QObject *parent)
    : QObject(parent)
    , m_folders(std::move(dictionaryFolders))
    , m_personalList(std::move(personalList))
    , m_dropTimer(new QTimer(this))
{
    // Not at once: a composer made again right after the last one went keeps them.
    m_dropTimer->setSingleShot(true);
    m_dropTimer->setInterval(0);
    connect(m_dropTimer, &QTimer::timeout, this, &SpellChecker::dropDictionaries);
}

SpellChecker::~SpellChecker() = default;

SpellChecker &SpellChecker::shared()
{
    static SpellChecker *checker = new SpellChecker(systemDictionaryFolders(), defaultPersonalList());
    return *checker;
}

QStringList SpellChecker::systemDictionaryFolders()
{
    QStringList folders;
    for (const QString &data : QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation))
        folders.append(data + "/hunspell"_L1);
    return folders;
}

QString SpellChecker::defaultPersonalList()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + "/personal-dictionary.txt"_L1;
}

void SpellChecker::setInterfaceLanguage(const QString &code)
{
    if (code == m_interfaceLanguage)
        return;
    m_interfaceLanguage = code;
    m_verdicts.clear();
    Q_EMIT judgementsChanged();
}

void SpellChecker::setPreferredLanguages(const QStringList &languages)
{
    m_preferredLanguages = languages;
    m_verdicts.clear();
}

QStringList SpellChecker::installedDictionaries() const
{
    if (!m_scanned) {
        m_scanned = true;
        for (const QString &folder : m_folders) {
            const QFileInfoList affixes = QDir(folder).entryInfoList({u"*.aff"_s}, QDir::Files, QDir::Name);
            for (const QFileInfo &affix : affixes) {
                const QString name = affix.completeBaseName();
                // The first folder has the say: the user's own before the system's.
                if (isDictionaryName(name) && !m_installed.contains(name) &&
                    QFileInfo::exists(affix.path() + u'/' + name + ".dic"_L1))
                    m_installed.insert(name, affix.filePath());
            }
        }
    }
    QStringList names = m_installed.keys();
    names.sort();
    return names;
}

// The dictionary of a language: its exact name, else its usual country's, else
// any country's, else the language's alone.
QString SpellChecker::dictionaryFor(const QString &code) const
{
    if (code.isEmpty())
        return {};
    const QStringList installed = installedDictionaries();
    const QString name = QString(code).replace(u'-', u'_');
    if (installed.contains(name))
        return name;
    const QLocale locale(name);
    if (locale.language() == QLocale::C)
        return {};
    if (installed.contains(locale.name()))
        return locale.name();
    const QString language = QLocale::languageToCode(locale.language());
    for (const QString &candidate : installed) {
        if (candidate.startsWith(language + u'_'))
            return candidate;
    }
    return installed.contains(language) ? language : QString();
}

QStringList SpellChecker::dictionariesForScript(int script) const
{
    QStringList names;
    const auto add = [&](const QString &name) {
        if (!name.isEmpty() && scriptOfLanguage(name) == script && !names.contains(name))
            names.append(name);
    };
    if (script == QChar::Script_Latin)
        add(dictionaryFor(u"en"_s));
    add(dictionaryFor(m_interfaceLanguage));
    // Another script: the first of the system's languages written in it, else
    // any language that is.
    for (const QString &language : m_preferredLanguages) {
        if (!names.isEmpty())
            break;
        add(dictionaryFor(language));
    }
    if (names.isEmpty()) {
        for (const QString &name : installedDictionaries()) {
            if (scriptOfLanguage(name) == script && QLocale(name).name().startsWith(name)) {
                add(dictionaryFor(name));
                break;
            }
        }
    }
    return names;
}

void SpellChecker::load(const QString &name)
{
    installedDictionaries();
    m_loading.insert(name);
    m_dictionaries.insert(name, nullptr);
    const int generation = m_generation;
    QtConcurrent::run(&Dictionary::read, m_installed.value(name))
        .then(this, [this, name, generation](std::shared_ptr<Dictionary> dictionary) {
            if (generation != m_generation)
                return;
            m_loading.remove(name);
            m_dictionaries.insert(name, dictionary);
            m_verdicts.clear();
            if (dictionary)
                Q_EMIT judgementsChanged();
        });
}

SpellChecker::Verdict SpellChecker::check(const QString &word)
{
    const QString form = SpellingWords::dictionaryForm(word);
    if (form.isEmpty() || isPersonal(form))
        return Verdict::Correct;
    if (const auto known = m_verdicts.constFind(form); known != m_verdicts.cend())
        return *known ? Verdict::Correct : Verdict::Misspelt;
    bool waiting = false;
    bool judged = false;
    for (const QString &name : dictionariesForScript(SpellingWords::scriptOf(form))) {
        if (!m_dictionaries.contains(name))
            load(name);
        if (m_loading.contains(name)) {
            waiting = true;
            continue;
        }
        const std::shared_ptr<Dictionary> &dictionary = m_dictionaries[name];
        if (!dictionary)
            continue;
        judged = true;
        if (dictionary->spell(form)) {
            if (m_verdicts.size() >= mostVerdicts)
                m_verdicts.clear();
            m_verdicts.insert(form, true);
            return Verdict::Correct;
        }
    }
    // One still loading may know the word.
    if (waiting || !judged)
        return Verdict::Unknown;
    if (m_verdicts.size() >= mostVerdicts)
        m_verdicts.clear();
    m_verdicts.insert(form, false);
    return Verdict::Misspelt;
}

QStringList SpellChecker::suggestions(const QString &word, int most)
{
    const QString form = SpellingWords::dictionaryForm(word);
    QList<QStringList> lists;
    for (const QString &name : dictionariesForScript(SpellingWords::scriptOf(form))) {
        const std::shared_ptr<Dictionary> dictionary = m_dictionaries.value(name);
        if (dictionary && !m_loading.contains(name))
            lists.append(dictionary->suggest(form));
    }
    // Each dictionary's best first, then each one's second…
    QStringList found;
    const bool typographic = word.contains(u'\u2019');
    for (qsizetype rank = 0; found.size() < most; ++rank) {
        bool any = false;
        for (const QStringList &list : std::as_const(lists)) {
            if (rank >= list.size() || found.size() >= most)
                continue;
            any = true;
            // Written as the word was: with typographic apostrophes if it had them.
            QString suggestion = list.at(rank);
            if (typographic)
                suggestion.replace(u'\'', u'\u2019');
            if (!found.contains(suggestion) && suggestion != word)
                found.append(suggestion);
        }
        if (!any)
            break;
    }
    return found;
}

void SpellChecker::readPersonalList()
{
    if (m_personalRead)
        return;
    m_personalRead = true;
    QFile file(m_personalList);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
        const QString word = SpellingWords::dictionaryForm(line.trimmed());
        if (!word.isEmpty())
            m_personal.insert(word);
    }
}

bool SpellChecker::isPersonal(const QString &word) const
{
    const_cast<SpellChecker *>(this)->readPersonalList();
    return m_personal.contains(word) || (isCapitalised(word) && m_personal.contains(word.toLower()));
}

bool SpellChecker::addToPersonalList(const QString &word)
{
    const QString form = SpellingWords::dictionaryForm(word.trimmed());
    if (form.isEmpty() || std::any_of(form.cbegin(), form.cend(), [](QChar c) { return c.isSpace(); }))
        return false;
    readPersonalList();
    if (m_personal.contains(form))
        return true;
    QDir().mkpath(QFileInfo(m_personalList).path());
    QFile file(m_personalList);
    if (!file.open(QIODevice::Append | QIODevice::Text))
        return false;
    const QByteArray line = form.toUtf8() + '\n';
    if (file.write(line) != line.size())
        return false;
    m_personal.insert(form);
    Q_EMIT judgementsChanged();
    return true;
}

void SpellChecker::hold()
{
    ++m_holders;
    m_dropTimer->stop();
}

void SpellChecker::release()
{
    if (m_holders > 0 && --m_holders == 0)
        m_dropTimer->start();
}

bool SpellChecker::hasDictionaries() const
{
    return !m_dictionaries.isEmpty();
}

void SpellChecker::dropDictionaries()
{
    if (m_holders > 0)
        return;
    ++m_generation;
    m_dictionaries.clear();
    m_loading.clear();
    m_verdicts.clear();
}
