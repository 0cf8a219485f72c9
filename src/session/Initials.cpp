#include "session/Initials.h"

#include <QStringList>

QString initials(const QString &name)
{
    const QStringList words = name.split(u' ', Qt::SkipEmptyParts);
    QString letters;
    for (qsizetype i = 0; i < words.size() && i < 2; ++i) {
        // A whole character, so that letters outside the basic plane stay intact.
        const QString &word = words.at(i);
        letters += word.left(word.at(0).isHighSurrogate() && word.size() > 1 ? 2 : 1);
    }
    return letters.toUpper();
}
