#include "EmojiCatalog.h"

#include <QFile>
#include <QHash>

#include <unicode/uchar.h>

using namespace Qt::StringLiterals;

namespace {

std::optional<EmojiGroup::Value> groupNamed(QStringView name)
{
    static const QHash<QString, EmojiGroup::Value> groups{
        {u"Smileys & Emotion"_s, EmojiGroup::SmileysAndEmotion},
        {u"People & Body"_s, EmojiGroup::PeopleAndBody},
        {u"Animals & Nature"_s, EmojiGroup::AnimalsAndNature},
        {u"Food & Drink"_s, EmojiGroup::FoodAndDrink},
        {u"Travel & Places"_s, EmojiGroup::TravelAndPlaces},
        {u"Activities"_s, EmojiGroup::Activities},
        {u"Objects"_s, EmojiGroup::Objects},
        {u"Symbols"_s, EmojiGroup::Symbols},
        {u"Flags"_s, EmojiGroup::Flags},
    };
    const auto found = groups.constFind(name.toString());
    return found == groups.cend() ? std::nullopt : std::optional(*found);
}

QString characterName(const QString &emoji)
{
    // Only one scalar (perhaps with the emoji presentation selector) has a name of its own.
    const QList<uint> scalars = emoji.toUcs4();
    if (scalars.isEmpty() || scalars.size() > 2 || (scalars.size() == 2 && scalars.at(1) != 0xFE0F))
        return {};
    char buffer[128];
    UErrorCode status = U_ZERO_ERROR;
    const int32_t length =
        u_charName(UChar32(scalars.first()), U_UNICODE_CHAR_NAME, buffer, int32_t(sizeof buffer), &status);
    if (U_FAILURE(status) || length <= 0)
        return {};
    return QString::fromLatin1(buffer, length).toLower();
}

} // namespace

QList<EmojiEntry> EmojiCatalog::parse(const QByteArray &emojiTest)
{
    QList<EmojiEntry> entries;
    std::optional<EmojiGroup::Value> group;
    for (const QByteArray &rawLine : emojiTest.split('\n')) {
        const QString line = QString::fromUtf8(rawLine).trimmed();
        if (line.startsWith(u"# group:"_s)) {
            group = groupNamed(QStringView(line).mid(8).trimmed());
            continue;
        }
        // "1F600 ; fully-qualified # 😀 E1.0 grinning face"
        if (!group || line.startsWith(u'#') || !line.contains(u"; fully-qualified"_s))
            continue;
        const qsizetype hash = line.indexOf(u'#');
        if (hash < 0)
            continue;
        const QStringList parts = line.mid(hash + 1).trimmed().split(u' ', Qt::SkipEmptyParts);
        // The emoji, its version ("E1.0"), then the name's words.
        if (parts.size() < 3 || !parts.at(1).startsWith(u'E'))
            continue;
        const QString name = parts.mid(2).join(u' ');
        if (name.contains(u"skin tone"_s))
            continue;
        entries.append({parts.first(), name, characterName(parts.first()), *group});
    }
    return entries;
}

const QList<EmojiEntry> &EmojiCatalog::all()
{
    static const QList<EmojiEntry> entries = [] {
        QFile file(u":/emoji/emoji-test.txt"_s);
        return file.open(QIODevice::ReadOnly) ? parse(file.readAll()) : QList<EmojiEntry>();
    }();
    return entries;
}

bool EmojiCatalog::matches(const EmojiEntry &entry, const QString &query)
{
    const QStringList words = query.simplified().toLower().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return true;
    if (words.size() == 1 && query.trimmed() == entry.emoji)
        return true;
    return std::all_of(words.cbegin(), words.cend(), [&entry](const QString &word) {
        return entry.name.contains(word, Qt::CaseInsensitive) || entry.characterName.contains(word);
    });
}
