#pragma once

class QQmlEngine;

namespace VostRender {

// Prepares QtWebEngine for the sticker views. Call it in main() before the
// QGuiApplication is created; it starts nothing, the engine's processes start when
// the first animated sticker is about to be shown.
void initializeStickerEngine();

// Lets the engine find the Vost.Render module (compiled into the program).
void addImportPath(QQmlEngine &engine);

// Whether the shared sticker profile, and with it the web engine, has been made.
bool isStickerEngineStarted();

} // namespace VostRender
