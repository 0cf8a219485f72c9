#include "StickerEngine.h"
#include "VostApp.h"

#include <QApplication>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Vost_AppPlugin)
Q_IMPORT_QML_PLUGIN(Vost_ModelPlugin)
Q_IMPORT_QML_PLUGIN(Vost_RenderPlugin)

int main(int argc, char *argv[])
{
    if (const std::optional<int> exitCode = VostApp::answerWithoutStarting(argc, argv))
        return *exitCode;
    VostRender::chooseSceneGraph();
    QApplication application(argc, argv);
    return VostApp::run(application);
}
