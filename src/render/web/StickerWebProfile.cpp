#include "StickerWebProfile.h"

#include <QCoreApplication>
#include <QPointer>

namespace {

QPointer<QQuickWebEngineProfile> &instance()
{
    static QPointer<QQuickWebEngineProfile> profile;
    return profile;
}

} // namespace

QQuickWebEngineProfile *StickerWebProfile::sharedProfile()
{
    QPointer<QQuickWebEngineProfile> &profile = instance();
    if (!profile) {
        profile = new QQuickWebEngineProfile(QCoreApplication::instance());
        profile->setOffTheRecord(true);
        profile->setHttpCacheType(QQuickWebEngineProfile::MemoryHttpCache);
        profile->setPersistentCookiesPolicy(QQuickWebEngineProfile::NoPersistentCookies);
    }
    return profile;
}
