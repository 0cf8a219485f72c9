#include "spelling/SpellChecker.h"
#include "spelling/SpellingWords.h"

#include <QDir>
#include <QFile>
#include <QSignalSpy>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>

using namespace Qt::StringLiterals;
using Verdict = SpellChecker::Verdict;

namespace {

// A small Hunspell dictionary: its words, one a line.
void writeDictionary(const QString &folder, const QString &name, const QStringList &words)
{
    QFile affix(folder + u'/' + name + ".aff"_L1);
    QVERIFY(affix.open(QIODevice::WriteOnly));
    affix.write("SET UTF-8\nTRY esianrtolcdugmphbyfvkwjqxz'\n");
    QFile list(folder + u'/' + name + ".dic"_L1);
    QVERIFY(list.open(QIODevice::WriteOnly));
    list.write(QByteArray::number(words.size()) + '\n' + words.join(u'\n').toUtf8() + '\n');
}

QStringList wordsOf(const QString &text)
{
    QStringList words;
    for (const SpellingWords::Word &word : SpellingWords::checkable(text))
        words.append(text.sliced(word.start, word.length));
    return words;
}

} // namespace

class SpellingTest : public QObject
{
    Q_OBJECT

private:
    QTemporaryDir m_dictionaries;

    // A checker of the test dictionaries that has loaded those of the word's script.
    Verdict settled(SpellChecker &checker, const QString &word)
    {
        if (checker.check(word) == Verdict::Unknown) {
            QSignalSpy loaded(&checker, &SpellChecker::judgementsChanged);
            loaded.wait(5000);
        }
        return checker.check(word);
    }

private Q_SLOTS:
    void initTestCase()
    {
        QVERIFY(m_dictionaries.isValid());
        const QString folder = m_dictionaries.path();
        writeDictionary(folder, u"en_US"_s, {u"hello"_s, u"world"_s, u"word"_s, u"don't"_s, u"the"_s});
        writeDictionary(folder, u"de_DE"_s, {u"Straße"_s, u"Welt"_s});
        writeDictionary(folder, u"ru_RU"_s, {u"привет"_s, u"мир"_s});
        // Not dictionaries: a variant and a hyphenation file of the same folder.
        writeDictionary(folder, u"de_DE_frami"_s, {u"Strasse"_s});
        writeDictionary(folder, u"hyph_en_US"_s, {u"wrld"_s});
    }

    void init() { QFile::remove(SpellChecker::defaultPersonalList()); }

    void splitsTypedTextIntoWordsWorthChecking_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<QStringList>("words");
        QTest::newRow("plain") << u"Helo wrld"_s << QStringList{u"Helo"_s, u"wrld"_s};
        QTest::newRow("punctuation") << u"Well, wrld! (hello)…"_s << QStringList{u"Well"_s, u"wrld"_s, u"hello"_s};
        QTest::newRow("apostrophes inside, quotes outside")
            << u"don’t and don't 'quoted'"_s << QStringList{u"don’t"_s, u"and"_s, u"don't"_s, u"quoted"_s};
        QTest::newRow("hyphens part words") << u"well-known"_s << QStringList{u"well"_s, u"known"_s};
        QTest::newRow("links") << u"see https://exmaple.com/pgae and www.vostt.org or exmaple.com"_s
                               << QStringList{u"see"_s, u"and"_s, u"or"_s};
        QTest::newRow("e-mail") << u"write emma@exmaple.com today"_s << QStringList{u"write"_s, u"today"_s};
        QTest::newRow("mentions, hashtags, commands")
            << u"ask @emmaw about #holidys, /strat or C:\\Usres"_s << QStringList{u"ask"_s, u"about"_s, u"or"_s};
        QTest::newRow("numbers and words with digits or underscores")
            << u"42 cats, mp3 3rd v2ray user_name"_s << QStringList{u"cats"_s};
        QTest::newRow("single letters and capitals") << u"I saw NASA and x"_s << QStringList{u"saw"_s, u"and"_s};
        QTest::newRow("other scripts") << u"Привет мир, سلام دنیا"_s
                                       << QStringList{u"Привет"_s, u"мир"_s, u"سلام"_s, u"دنیا"_s};
        QTest::newRow("combining marks stay with their letter")
            << u"cafe\u0301 ok"_s << QStringList{u"cafe\u0301"_s, u"ok"_s};
        QTest::newRow("emoji part words") << u"hi😀there"_s << QStringList{u"hi"_s, u"there"_s};
        QTest::newRow("nothing") << QString() << QStringList();
    }

    void splitsTypedTextIntoWordsWorthChecking()
    {
        QFETCH(QString, text);
        QFETCH(QStringList, words);
        QCOMPARE(wordsOf(text), words);
    }

    void dictionariesKnowTheTypewriterApostrophe()
    {
        QCOMPARE(SpellingWords::dictionaryForm(u"don’t"), u"don't"_s);
        QCOMPARE(SpellingWords::scriptOf(u"мир"), int(QChar::Script_Cyrillic));
        QCOMPARE(SpellingWords::scriptOf(u"'hello"), int(QChar::Script_Latin));
    }

    void findsOnlyRealDictionaries()
    {
        SpellChecker checker({m_dictionaries.path(), u"/nonexistent"_s}, SpellChecker::defaultPersonalList());
        QCOMPARE(checker.installedDictionaries(), (QStringList{u"de_DE"_s, u"en_US"_s, u"ru_RU"_s}));
    }

    void judgesWordsOnceItsDictionaryIsLoaded()
    {
        SpellChecker checker({m_dictionaries.path()}, SpellChecker::defaultPersonalList());
        checker.setPreferredLanguages({});
        // The dictionary loads in the background: until then, no verdict.
        QCOMPARE(checker.check(u"wrld"_s), Verdict::Unknown);
        QCOMPARE(settled(checker, u"wrld"_s), Verdict::Misspelt);
        QCOMPARE(checker.check(u"world"_s), Verdict::Correct);
        QCOMPARE(checker.check(u"Hello"_s), Verdict::Correct);
        QCOMPARE(checker.check(u"don’t"_s), Verdict::Correct);
        QVERIFY(checker.suggestions(u"wrld"_s).contains(u"world"_s));
        QVERIFY(checker.suggestions(u"wrld"_s).size() <= 5);
        QCOMPARE(checker.suggestions(u"Wrld"_s).value(0), u"World"_s);
        // A correction is written with the apostrophe the word was typed with.
        QVERIFY(checker.suggestions(u"dn’t"_s).contains(u"don’t"_s));
        // German only when the interface speaks it.
        QCOMPARE(checker.check(u"Straße"_s), Verdict::Misspelt);
        checker.setInterfaceLanguage(u"de"_s);
        QCOMPARE(settled(checker, u"Straße"_s), Verdict::Correct);
        QCOMPARE(checker.check(u"world"_s), Verdict::Correct);
    }

    void otherScriptsUseTheirOwnDictionary()
    {
        SpellChecker checker({m_dictionaries.path()}, SpellChecker::defaultPersonalList());
        checker.setPreferredLanguages({});
        QCOMPARE(settled(checker, u"Привет"_s), Verdict::Correct);
        QCOMPARE(checker.check(u"мирр"_s), Verdict::Misspelt);
        QVERIFY(checker.suggestions(u"мирр"_s).contains(u"мир"_s));
        // No Persian dictionary here: Arabic-script words are never marked.
        QCOMPARE(checker.check(u"سلامم"_s), Verdict::Unknown);
        SpellChecker bare({u"/nonexistent"_s}, SpellChecker::defaultPersonalList());
        QCOMPARE(bare.check(u"wrld"_s), Verdict::Unknown);
        QVERIFY(bare.suggestions(u"wrld"_s).isEmpty());
    }

    void personalWordsCountAtOnceAndAreKept()
    {
        const QString path = SpellChecker::defaultPersonalList();
        QVERIFY(path.startsWith(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
        SpellChecker checker({m_dictionaries.path()}, path);
        checker.setPreferredLanguages({});
        QCOMPARE(settled(checker, u"Vostgram"_s), Verdict::Misspelt);
        QSignalSpy changed(&checker, &SpellChecker::judgementsChanged);
        QVERIFY(checker.addToPersonalList(u"Vostgram"_s));
        QCOMPARE(changed.size(), 1);
        QCOMPARE(checker.check(u"Vostgram"_s), Verdict::Correct);
        QVERIFY(checker.addToPersonalList(u"wrld"_s));
        // A word of the list starts a sentence, but a name is not lowered.
        QCOMPARE(checker.check(u"Wrld"_s), Verdict::Correct);
        QCOMPARE(checker.check(u"vostgram"_s), Verdict::Misspelt);
        QVERIFY(!checker.addToPersonalList(u"two words"_s));
        QVERIFY(!checker.addToPersonalList(u"  "_s));
        // Once is enough.
        QVERIFY(checker.addToPersonalList(u"Vostgram"_s));

        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), "Vostgram\nwrld\n");
        SpellChecker later({m_dictionaries.path()}, path);
        QCOMPARE(later.check(u"Vostgram"_s), Verdict::Correct);
    }

    void anUnwritableListKeepsNothing()
    {
        SpellChecker checker({m_dictionaries.path()}, m_dictionaries.path() + "/en_US.aff/words.txt"_L1);
        checker.setPreferredLanguages({});
        QVERIFY(!checker.addToPersonalList(u"Vostgram"_s));
        QCOMPARE(settled(checker, u"Vostgram"_s), Verdict::Misspelt);
    }

    void dictionariesGoWhenNobodyHoldsThem()
    {
        SpellChecker checker({m_dictionaries.path()}, SpellChecker::defaultPersonalList());
        checker.setPreferredLanguages({});
        checker.hold();
        QCOMPARE(settled(checker, u"wrld"_s), Verdict::Misspelt);
        checker.release();
        checker.hold();
        QTest::qWait(50);
        QVERIFY(checker.hasDictionaries());
        checker.release();
        QTRY_VERIFY(!checker.hasDictionaries());
        QCOMPARE(settled(checker, u"wrld"_s), Verdict::Misspelt);
    }
};

QTEST_GUILESS_MAIN(SpellingTest)
#include "tst_spelling.moc"
