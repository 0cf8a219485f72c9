import QtQuick
import Vost.Render

// Plays an animated (gzip Lottie) or video (WebM) sticker in a self-contained page
// that can reach no network. The web engine starts only when the first page is
// about to be shown; a new page is loaded only when the path or the format changes.
// Clicks pass through to what lies underneath.
Item {
    id: root

    // The sticker file on disk.
    property alias path: controller.path
    // StickerPageController.Animated or .Video (WebP gets the video markup).
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
        if (web.item)
            web.item.runJavaScript(script, callback)
    }

    implicitWidth: 160
    implicitHeight: 160

    StickerPageController {
        id: controller
    }

    Loader {
        id: web

        anchors.fill: parent
        active: controller.hasPage
        source: "StickerWebFrame.qml"
        onLoaded: {
            item.pageLoaded.connect(root.pageLoaded)
            item.show(controller.page)
        }
    }

    Binding {
        target: controller
        property: "pageTitle"
        value: web.item ? web.item.title : ""
        when: web.item !== null
    }

    Connections {
        target: controller
        function onPageChanged() {
            if (web.item)
                web.item.show(controller.page)
        }
    }
}
