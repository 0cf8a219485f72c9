#pragma once

class QQmlEngine;

namespace VostRender {

// Picks Qt Quick's renderer; call it before the QGuiApplication is made. The
// software renderer draws unless QT_QUICK_BACKEND asks for another: it needs no
// OpenGL driver in the process and gives everything back when a window closes.
void chooseSceneGraph();

// Lets the engine find the Vost.Render module, compiled into the program.
void addImportPath(QQmlEngine &engine);

} // namespace VostRender
