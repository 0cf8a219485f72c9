import QtQuick
import Vost.Render

// One sticker, wherever stickers show: a WebP as an image, an animated (.tgs)
// sticker by the native player, a video (WebM) sticker in the isolated web page,
// played by a helper process that runs only while such stickers are shown. Until
// the file is there, until its first frame, or when it cannot be shown, its emoji
// stands in.
Item {
    id: view

    // The sticker file; "" while it downloads.
    property string path
    // A Model.StickerFormat.
    property int format: Model.StickerFormat.Webp
    property string emoji
    // Animated and video stickers play while this is set and they are shown.
    property bool playing: true
    // Whether it is exposed to assistive technology (a list hides what is off screen).
    property bool shown: true

    readonly property bool ready: (format === Model.StickerFormat.Webp && image.status === Image.Ready)
                                  || (format === Model.StickerFormat.Animated && player.status === StickerPlayer.Ready)
                                  || (format === Model.StickerFormat.Video && video.status === Loader.Ready
                                      && video.item.playState === StickerPageController.Playing
                                      && video.item.frameCount > 0)

    implicitWidth: 160
    implicitHeight: 160
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Sticker %1").arg(emoji)
    Accessible.ignored: !visible || !shown

    Image {
        id: image

        anchors.fill: parent
        visible: view.format === Model.StickerFormat.Webp
        source: visible ? LocalFile.url(view.path) : ""
        sourceSize: Qt.size(view.width * 2, view.height * 2)
        fillMode: Image.PreserveAspectFit
        asynchronous: true
    }

    StickerPlayer {
        id: player

        anchors.fill: parent
        visible: view.format === Model.StickerFormat.Animated
        path: visible ? view.path : ""
        playing: view.playing
    }

    Loader {
        id: video

        anchors.fill: parent
        active: view.format === Model.StickerFormat.Video && view.path !== "" && view.visible && view.playing
        sourceComponent: AnimatedStickerView {
            objectName: "stickerPage"
            path: view.path
            format: Model.StickerFormat.Video
        }
    }

    Text {
        objectName: "emoji"
        anchors.centerIn: parent
        visible: !view.ready
        text: view.emoji
        font.pixelSize: Math.max(12, Math.min(view.width, view.height) * 0.45)
        font.family: "Noto Color Emoji"
    }
}
