#pragma once

#include <QList>
#include <QString>
#include <QStringView>

// Which words of a typed text a spelling dictionary should judge. A word is a run
// of letters (with their combining marks) that may hold apostrophes between
// letters ("don't", "don’t"); hyphens and everything else part words. Left alone:
// links and e-mail addresses, mentions ("@name"), hashtags ("#tag"), commands and
// paths ("/start"), words touching digits or underscores ("mp3", "user_name"),
// single letters, and words all in capitals ("NASA").
namespace SpellingWords {

struct Word {
    // In UTF-16 code units, the unit of QString and of the text document.
    qsizetype start = 0;
    qsizetype length = 0;

    qsizetype end() const { return start + length; }
    friend bool operator==(const Word &, const Word &) = default;
};

// The words worth checking, in text order.
QList<Word> checkable(const QString &text);

// The form dictionaries know: typographic apostrophes as the typewriter one.
QString dictionaryForm(QStringView word);

// The writing system of the word's first letter (a QChar::Script value).
int scriptOf(QStringView word);

} // namespace SpellingWords
