import QtQuick
import QtWebEngine
import Vost.Render.Web

// The web view of one sticker, on the shared off-the-record profile: transparent,
// autoplay allowed, no input (clicks reach the message underneath).
WebEngineView {
    id: view

    signal pageLoaded

    function show(page) {
        view.loadHtml(page)
    }

    enabled: false
    profile: StickerWebProfile.profile
    backgroundColor: "transparent"
    settings.playbackRequiresUserGesture: false
    settings.localContentCanAccessRemoteUrls: false
    settings.localContentCanAccessFileUrls: false
    settings.javascriptCanOpenWindows: false
    settings.localStorageEnabled: false
    settings.pluginsEnabled: false
    settings.showScrollBars: false
    onLoadingChanged: function (loadRequest) {
        if (loadRequest.status === WebEngineView.LoadSucceededStatus)
            view.pageLoaded()
    }
}
