#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QString>
#include <QtQml/qqmlregistration.h>

// The emoji a person can pick, in Unicode's order and groups, read from Unicode's
// emoji test data (fully qualified emoji; skin-tone variants and the components
// they are made of are left out). Each carries its short name and, for one-scalar
// emoji, ICU's character name, which searches match too.
class EmojiGroup : public QObject
{
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Only the group values are used.")

public:
    // Recent comes first in the picker; the others follow Unicode's groups.
    enum Value {
        Recent,
        SmileysAndEmotion,
        PeopleAndBody,
        AnimalsAndNature,
        FoodAndDrink,
        TravelAndPlaces,
        Activities,
        Objects,
        Symbols,
        Flags
    };
    Q_ENUM(Value)
};

struct EmojiEntry {
    QString emoji;
    QString name;
    // ICU's name of a one-scalar emoji, lower case; empty for sequences.
    QString characterName;
    EmojiGroup::Value group = EmojiGroup::SmileysAndEmotion;

    friend bool operator==(const EmojiEntry &, const EmojiEntry &) = default;
};

namespace EmojiCatalog {
// The emoji of the data compiled into the program, parsed on first use.
const QList<EmojiEntry> &all();
// Parses emoji test data (emoji-test.txt's format).
QList<EmojiEntry> parse(const QByteArray &emojiTest);
// Whether every word of query is in the entry's name or character name, ignoring case.
bool matches(const EmojiEntry &entry, const QString &query);
} // namespace EmojiCatalog
