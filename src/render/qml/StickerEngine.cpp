#include "StickerEngine.h"

#include "StickerWebProfile.h"

#include <QQmlEngine>
#include <QtWebEngineQuick/QtWebEngineQuick>

using namespace Qt::StringLiterals;

namespace VostRender {

void initializeStickerEngine()
{
    QtWebEngineQuick::initialize();
}

void addImportPath(QQmlEngine &engine)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
}

bool isStickerEngineStarted()
{
    return StickerWebProfile::hasSharedProfile();
}

} // namespace VostRender
