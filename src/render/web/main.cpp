// vost-sticker-host: plays video stickers for Vost in a process of its own, which
// Vost starts when the first such sticker shows and lets go when the last has left;
// the web engine's memory and processes go with it.

#include "StickerHost.h"

#include <QGuiApplication>
#include <QLoggingCategory>
#include <QOpenGLContext>
#include <QQuickWindow>
#include <QtWebEngineQuick/QtWebEngineQuick>

#include <cstdio>

QT_BEGIN_NAMESPACE
Q_GUI_EXPORT void qt_gl_set_global_share_context(QOpenGLContext *context);
QT_END_NAMESPACE

namespace {

// QtWebEngine 6.4 reads the format of the application's shared OpenGL context when
// it starts, even when it draws without OpenGL, as it does here. It gets a context
// that is never created: no OpenGL driver is loaded.
void provideUncreatedShareContext()
{
    static QOpenGLContext *context = new QOpenGLContext;
    qt_gl_set_global_share_context(context);
}

} // namespace

int main(int argc, char *argv[])
{
    // The pages are drawn into images and never shown: no display is needed.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // The engine's report of its graphics set-up, which has none to speak of here.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext.info=false"));
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    qAddPreRoutine(provideUncreatedShareContext);
    QtWebEngineQuick::initialize();
    QGuiApplication application(argc, argv);
    application.setApplicationName(QStringLiteral("vost-sticker-host"));
    const QStringList arguments = application.arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: vost-sticker-host SERVER (Vost starts it with the name of its local server)\n", stderr);
        return 2;
    }
    StickerHost host(arguments.at(1));
    return application.exec();
}
