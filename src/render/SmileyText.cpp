#include "render/SmileyText.h"

#include "render/LinkRecognizer.h"

#include <QList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace SmileyText {

namespace {

struct Row {
    QList<QString> smileys;
    QString emoji;
};

QHash<QString, QString> buildReplacements()
{
    const QList<Row> rows = {
        {{u":)"_s, u":-)"_s, u":]"_s, u"=)"_s}, u"\U0001F642"_s},
        {{u":D"_s, u":-D"_s, u"=D"_s}, u"\U0001F603"_s},
        {{u";)"_s, u";-)"_s}, u"\U0001F609"_s},
        {{u":P"_s, u":-P"_s, u":p"_s, u":-p"_s}, u"\U0001F61B"_s},
        {{u":("_s, u":-("_s, u":["_s, u"=("_s}, u"\U0001F641"_s},
        {{u":'("_s, u":'-("_s}, u"\U0001F622"_s},
        {{u":O"_s, u":-O"_s, u":o"_s, u":-o"_s}, u"\U0001F62E"_s},
        {{u":|"_s, u":-|"_s}, u"\U0001F610"_s},
        {{u":/"_s, u":-/"_s}, u"\U0001F615"_s},
        {{u":*"_s, u":-*"_s}, u"\U0001F618"_s},
        {{u"8)"_s, u"8-)"_s}, u"\U0001F60E"_s},
        {{u"<3"_s}, u"\u2764\uFE0F"_s},
    };
    QHash<QString, QString> table;
    for (const Row &row : rows)
        for (const QString &smiley : row.smileys)
            table.insert(smiley, row.emoji);
    return table;
}

QRegularExpression buildPattern()
{
    QList<QString> keys = replacements().keys();
    // The alternation takes the first alternative that fits, so longer keys go first.
    std::sort(keys.begin(), keys.end(), [](const QString &a, const QString &b) {
        if (a.size() != b.size())
            return a.size() > b.size();
        return a < b;
    });
    QStringList escaped;
    for (const QString &key : keys)
        escaped.append(QRegularExpression::escape(key));
    QRegularExpression expression(uR"((?<![\p{L}\p{N}_/\\])(?:)"_s + escaped.join(u'|') +
                                  uR"()(?![\p{L}\p{N}_/\\]))"_s);
    if (!expression.isValid())
        qFatal("SmileyText: the smiley pattern does not compile: %s", qPrintable(expression.errorString()));
    expression.optimize();
    return expression;
}

} // namespace

const QHash<QString, QString> &replacements()
{
    static const QHash<QString, QString> table = buildReplacements();
    return table;
}

const QRegularExpression &pattern()
{
    static const QRegularExpression expression = buildPattern();
    return expression;
}

QString render(const QString &text)
{
    const QList<TextLink> links = findLinks(text);

    struct Match {
        qsizetype start;
        qsizetype length;
    };
    QList<Match> matches;
    auto iterator = pattern().globalMatch(text);
    while (iterator.hasNext()) {
        const QRegularExpressionMatch match = iterator.next();
        matches.append({match.capturedStart(), match.capturedLength()});
    }

    QString result = text;
    for (auto match = matches.crbegin(); match != matches.crend(); ++match) {
        const qsizetype end = match->start + match->length;
        const bool insideLink = std::any_of(links.cbegin(), links.cend(), [&](const TextLink &link) {
            return std::max(link.start, match->start) < std::min(link.start + link.length, end);
        });
        if (insideLink)
            continue;
        const auto emoji = replacements().constFind(text.mid(match->start, match->length));
        if (emoji != replacements().constEnd())
            result.replace(match->start, match->length, *emoji);
    }
    return result;
}

} // namespace SmileyText
