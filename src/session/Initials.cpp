#include "session/Initials.h"

#include <QStringList>

QString initials(const QString &name)
{
    // The first character of the first two words; a whole character, so that
    // letters outside the basic plane stay intact.
    QString letters;
    int words = 0;
    for (qsizetype i = 0; i < name.size() && words < 2; ++i) {
        if (name.at(i) == u' ' || (i > 0 && name.at(i - 1) != u' '))
            continue;
        letters += name.mid(i, name.at(i).isHighSurrogate() && i + 1 < name.size() ? 2 : 1);
        ++words;
    }
    return letters.toUpper();
}
