#include "StickerEngine.h"

#include <QQmlEngine>
#include <QQuickWindow>

using namespace Qt::StringLiterals;

namespace VostRender {

void chooseSceneGraph()
{
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND"))
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
}

void addImportPath(QQmlEngine &engine)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
}

} // namespace VostRender
