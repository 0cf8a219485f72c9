#include "SpellingWords.h"

#include "render/LinkRecognizer.h"

using namespace Qt::StringLiterals;

namespace SpellingWords {

namespace {

bool isApostrophe(char32_t c)
{
    return c == U'\'' || c == U'\u2019' || c == U'\u02BC';
}

bool isWordPart(char32_t c)
{
    return QChar::isLetter(c) || QChar::isMark(c);
}

// Whatever sticks to a word and makes it something other than prose.
bool isDisqualifying(char32_t c)
{
    return QChar::isDigit(c) || QChar::isNumber(c) || c == U'_';
}

char32_t codePointAt(const QString &text, qsizetype i)
{
    const QChar c = text.at(i);
    if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
        return QChar::surrogateToUcs4(c, text.at(i + 1));
    return c.unicode();
}

qsizetype unitsOf(char32_t c)
{
    return QChar::requiresSurrogates(c) ? 2 : 1;
}

// The code point just before position i.
char32_t codePointBefore(const QString &text, qsizetype i)
{
    if (i <= 0)
        return 0;
    const QChar c = text.at(i - 1);
    if (c.isLowSurrogate() && i >= 2 && text.at(i - 2).isHighSurrogate())
        return QChar::surrogateToUcs4(text.at(i - 2), c);
    return c.unicode();
}

bool allCapitals(QStringView word)
{
    bool sawLetter = false;
    for (const char32_t c : word.toUcs4()) {
        if (!QChar::isLetter(c))
            continue;
        if (!QChar::isUpper(c) && !QChar::isTitleCase(c))
            return false;
        sawLetter = true;
    }
    return sawLetter;
}

qsizetype letterCount(QStringView word)
{
    qsizetype count = 0;
    for (const char32_t c : word.toUcs4())
        count += QChar::isLetter(c) ? 1 : 0;
    return count;
}

} // namespace

QList<Word> checkable(const QString &text)
{
    QList<Word> words;
    const QList<TextLink> links = findLinks(text);
    auto link = links.cbegin();
    qsizetype i = 0;
    while (i < text.size()) {
        const char32_t first = codePointAt(text, i);
        if (!isWordPart(first) && !isDisqualifying(first)) {
            i += unitsOf(first);
            continue;
        }
        // A run of letters, marks, digits and underscores, with apostrophes inside.
        const qsizetype start = i;
        bool disqualified = false;
        while (i < text.size()) {
            const char32_t c = codePointAt(text, i);
            if (isWordPart(c) || isDisqualifying(c)) {
                disqualified = disqualified || isDisqualifying(c);
                i += unitsOf(c);
                continue;
            }
            const qsizetype next = i + unitsOf(c);
            if (isApostrophe(c) && next < text.size() && QChar::isLetter(codePointAt(text, next)) &&
                QChar::isLetter(codePointBefore(text, i))) {
                i = next;
                continue;
            }
            break;
        }
        const Word word{start, i - start};
        const char32_t before = codePointBefore(text, start);
        if (disqualified || before == U'@' || before == U'#' || before == U'/' || before == U'\\')
            continue;
        while (link != links.cend() && link->start + link->length <= start)
            ++link;
        if (link != links.cend() && link->start < word.end())
            continue;
        const QStringView view = QStringView(text).sliced(word.start, word.length);
        if (letterCount(view) < 2 || allCapitals(view))
            continue;
        words.append(word);
    }
    return words;
}

QString dictionaryForm(QStringView word)
{
    QString form = word.toString();
    form.replace(QChar(u'\u2019'), u'\'');
    form.replace(QChar(u'\u02BC'), u'\'');
    return form;
}

int scriptOf(QStringView word)
{
    for (const char32_t c : word.toUcs4()) {
        if (QChar::isLetter(c))
            return QChar::script(c);
    }
    return QChar::Script_Unknown;
}

} // namespace SpellingWords
