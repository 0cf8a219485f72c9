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
    // The answer to probe().
    signal probed(var answer)

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

    // Runs a script beside the page's own, in a world of its own: it reads the
    // page's elements but shares none of its variables.
    function probe(script) {
        view.runJavaScript(script, WebEngineScript.ApplicationWorld, function (answer) {
            view.probed(answer)
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
