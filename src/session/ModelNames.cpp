#include "session/ModelNames.h"

namespace {

QString lowerFirst(const char *key)
{
    QString name = QString::fromLatin1(key);
    if (!name.isEmpty())
        name[0] = name.at(0).toLower();
    return name;
}

} // namespace

QString caseName(const QMetaEnum &meta, int value)
{
    const char *key = meta.valueToKey(value);
    return key ? lowerFirst(key) : QString();
}

std::optional<int> caseValue(const QMetaEnum &meta, const QString &name)
{
    for (int i = 0; i < meta.keyCount(); ++i) {
        if (lowerFirst(meta.key(i)) == name)
            return meta.value(i);
    }
    return std::nullopt;
}
