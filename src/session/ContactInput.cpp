#include "session/ContactInput.h"

using namespace Qt::StringLiterals;

namespace {

bool isAsciiDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

std::optional<QString> normalizedContactPhone(const QString &text)
{
    QString kept;
    for (const QChar c : text.trimmed()) {
        if (c.isSpace() || c == u'(' || c == u')' || c == u'-' || c == u'.')
            continue;
        if (c != u'+' && !isAsciiDigit(c))
            return std::nullopt;
        kept.append(c);
    }
    if (!kept.startsWith(u'+'))
        return std::nullopt;
    const QStringView digits = QStringView(kept).mid(1);
    if (digits.size() < 6 || digits.size() > 15 || digits.front() == u'0')
        return std::nullopt;
    for (const QChar c : digits) {
        if (!isAsciiDigit(c))
            return std::nullopt;
    }
    return kept;
}

std::optional<QString> cleanedUsername(const QString &text)
{
    QString name = text.trimmed();
    if (name.startsWith(u'@'))
        name.remove(0, 1);
    if (name.isEmpty() || name.size() > 32)
        return std::nullopt;
    for (const QChar c : std::as_const(name)) {
        const bool allowed = isAsciiDigit(c) || c == u'_' || (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
        if (!allowed)
            return std::nullopt;
    }
    return name;
}
