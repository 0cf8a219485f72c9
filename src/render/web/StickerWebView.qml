import QtQuick
import QtWebEngine

// The web view of one sticker page, on the host's off-the-record profile:
// transparent, autoplay allowed, nothing that opens windows, stores data or
// reaches files.
WebEngineView {
    id: view

    // The page finished loading, or failed to.
    signal pageLoaded(bool succeeded)
    // The answer to runScript().
    signal scriptAnswered(int request, var result)

    function show(page) {
        view.loadHtml(page)
    }

    // Stops what plays, between two stickers.
    function clear() {
        view.url = "about:blank"
    }

    function runScript(request, script) {
        view.runJavaScript(script, function (result) {
            view.scriptAnswered(request, result)
        })
    }

    enabled: false
    backgroundColor: "transparent"
    settings.playbackRequiresUserGesture: false
    settings.localContentCanAccessRemoteUrls: false
    settings.localContentCanAccessFileUrls: false
    settings.javascriptCanOpenWindows: false
    settings.localStorageEnabled: false
    settings.pluginsEnabled: false
    settings.showScrollBars: false
    onLoadingChanged: function (loadRequest) {
        if (loadRequest.url.toString() === "about:blank")
            return
        if (loadRequest.status === WebEngineView.LoadSucceededStatus)
            view.pageLoaded(true)
        else if (loadRequest.status === WebEngineView.LoadFailedStatus)
            view.pageLoaded(false)
    }
}
