import Vost.Render.Web

// The web view of a sticker page. Its module, and QtWebEngine with it, is loaded
// only when this component is first made, which a Loader does on demand.
StickerWebView {
}
