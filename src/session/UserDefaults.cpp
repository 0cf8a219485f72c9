#include "session/UserDefaults.h"

#include <QSettings>

using namespace Qt::StringLiterals;

namespace {
QSettings store()
{
    return QSettings(u"Corvella"_s, u"Vost"_s);
}
} // namespace

QVariant UserDefaults::value(const QString &key)
{
    return store().value(key);
}

void UserDefaults::setValue(const QString &key, const QVariant &value)
{
    QSettings settings = store();
    settings.setValue(key, value);
}
