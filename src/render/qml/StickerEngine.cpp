#include "StickerEngine.h"

#include "tdlib/AppBundle.h"

#include <QCoreApplication>
#include <QOpenGLContext>
#include <QQmlEngine>
#include <QQuickWindow>

QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

using namespace Qt::StringLiterals;

namespace {

// QtWebEngine 6.4 reads the format of the application's shared OpenGL context when
// it starts, even when it draws without OpenGL, as it does beside the software
// renderer. It gets a context that is never created: no OpenGL driver is loaded.
void provideUncreatedShareContext()
{
    static QOpenGLContext *context = new QOpenGLContext;
    qt_gl_set_global_share_context(context);
}

} // namespace

namespace VostRender {

void chooseSceneGraph()
{
    if (qEnvironmentVariableIsEmpty("QT_QUICK_BACKEND")) {
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
        qAddPreRoutine(provideUncreatedShareContext);
    } else {
        QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    }
}

void addImportPath(QQmlEngine &engine)
{
    engine.addImportPath(u"qrc:/qt/qml"_s);
    // Vost.Render.Web is a plugin on disk, in the private library folder.
    if (const std::optional<QString> folder = AppBundle::main().privateLibraryFolder())
        engine.addImportPath(*folder + "/qml"_L1);
}

} // namespace VostRender
