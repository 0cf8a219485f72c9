#include "session/NotificationCenter.h"

NotificationCenter &NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}

void NotificationCenter::post(const QString &name, const QVariant &object)
{
    Q_EMIT posted(name, object);
}
