import QtQuick
import Vost.Render

// Plays an animated (gzip Lottie) or video (WebM) sticker in a self-contained page
// that can reach no network. The web engine starts, in a process of its own, only
// when the first page is about to be shown; a new page is loaded only when the path
// or the format changes. Clicks pass through to what lies underneath.
Item {
    id: root

    // How many frames of the page have been shown.
    readonly property alias frameCount: web.frameCount

    // The sticker file on disk.
    property alias path: controller.path
    // Model.StickerFormat.Animated or .Video (WebP gets the video markup).
    property alias format: controller.format
    // The key of the page last handed to the web view.
    readonly property alias pageKey: controller.key
    // StickerPageController.Loading, .Playing or .Unavailable (the file is no
    // sticker the page can play).
    readonly property alias playState: controller.playState

    // A page has finished loading.
    signal pageLoaded

    // Runs a script in the page (for inspection); the callback gets its result.
    function runJavaScript(script, callback) {
        web.runJavaScript(script, callback)
    }

    implicitWidth: 160
    implicitHeight: 160

    StickerPageController {
        id: controller
    }

    // Played in the sticker host, a process of its own, which starts with the first
    // page and ends a while after the last view has gone.
    StickerHostView {
        id: web

        anchors.fill: parent
        onPageLoaded: root.pageLoaded()
        onPlayStateChanged: controller.reportPlayState(web.playState)
        onPageLost: controller.markUnavailable()
    }

    Connections {
        target: controller
        function onPageChanged() {
            web.show(controller.page)
        }
    }
}
