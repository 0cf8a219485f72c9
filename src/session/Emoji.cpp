#include "session/Emoji.h"

#include <QList>
#include <QString>
#include <QTextBoundaryFinder>

#include <unicode/uchar.h>

#include <algorithm>

namespace {

constexpr char32_t zeroWidthJoiner = 0x200D;
constexpr char32_t emojiVariation = 0xFE0F;
constexpr char32_t combiningKeycap = 0x20E3;

bool has(char32_t scalar, UProperty property)
{
    return u_hasBinaryProperty(UChar32(scalar), property);
}

// One user-perceived character: is it shown as an emoji?
bool isEmojiCluster(const QList<char32_t> &scalars)
{
    if (scalars.isEmpty())
        return false;
    const char32_t first = scalars.first();
    if (has(first, UCHAR_REGIONAL_INDICATOR))
        return scalars.size() == 2 && has(scalars.at(1), UCHAR_REGIONAL_INDICATOR);
    if (!has(first, UCHAR_EMOJI))
        return false;
    if (scalars.contains(combiningKeycap))
        return true;
    if (has(first, UCHAR_EMOJI_PRESENTATION))
        return true;
    // Text by default ("❤", "©", "1"): an emoji with the selector, a modifier or a join.
    return scalars.contains(emojiVariation) || scalars.contains(zeroWidthJoiner) ||
           (scalars.size() > 1 && has(scalars.at(1), UCHAR_EMOJI_MODIFIER));
}

} // namespace

bool containsEmoji(QStringView text)
{
    for (const uint scalar : text.toUcs4()) {
        if (u_hasBinaryProperty(UChar32(scalar), UCHAR_EMOJI))
            return true;
    }
    return false;
}

int emojiOnlyCount(QStringView text)
{
    const QString string = text.toString();
    // Qt's grapheme boundaries, joined where emoji sequences continue: after a
    // zero-width joiner, and two regional indicators as one flag.
    QList<QList<char32_t>> clusters;
    QTextBoundaryFinder graphemes(QTextBoundaryFinder::Grapheme, string);
    qsizetype start = 0;
    for (qsizetype end = graphemes.toNextBoundary(); end > 0; end = graphemes.toNextBoundary()) {
        QList<char32_t> scalars;
        for (const uint scalar : QStringView(string).sliced(start, end - start).toUcs4())
            scalars.append(char32_t(scalar));
        start = end;
        const bool continues = !clusters.isEmpty() && (clusters.last().last() == zeroWidthJoiner ||
                                                       (clusters.last().size() == 1 &&
                                                        has(clusters.last().first(), UCHAR_REGIONAL_INDICATOR) &&
                                                        has(scalars.first(), UCHAR_REGIONAL_INDICATOR)));
        if (continues)
            clusters.last().append(scalars);
        else
            clusters.append(scalars);
    }
    int count = 0;
    for (const QList<char32_t> &scalars : std::as_const(clusters)) {
        if (std::all_of(scalars.cbegin(), scalars.cend(), [](char32_t scalar) { return QChar::isSpace(scalar); }))
            continue;
        if (!isEmojiCluster(scalars))
            return 0;
        ++count;
    }
    return count;
}

QString emojiFontText(QStringView text)
{
    QString shaped = text.toString();
    shaped.remove(QChar(char16_t(emojiVariation)));
    return shaped;
}
