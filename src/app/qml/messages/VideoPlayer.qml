import QtQuick
import QtMultimedia
import Vost.App
import Vost.Render

// A video or an animation in the bubble. An animation (a GIF) loops silently
// while it is on screen; a video shows its first frame with a play button and
// plays muted on a click. The duration sits at the bottom left. A click on a
// playing video, or on an animation, opens the viewer with sound.
Item {
    id: media

    // Whether the message is on screen: off screen, nothing of it is exposed to
    // assistive technology.
    property bool shown: true

    required property var details
    // The downloaded file; "" until it is here.
    required property string path
    property real progress: -1
    property bool isAnimation: false
    // Whether the bubble is on screen: nothing plays off screen.
    property bool onScreen: true
    property real maximumWidth: 320

    signal opened

    readonly property bool isGif: details.mimeType === "image/gif" || path.toLowerCase().endsWith(".gif")
    property bool started: false
    readonly property bool playing: path !== "" && onScreen && (isAnimation || started)
                                    && Window.window !== null && Window.window.visible
    // A reused delegate gets its new kind, path and details one after the other:
    // the media player (which brings in GStreamer and its decoders for good) and
    // the GIF's image are made only for what is still wanted once all have
    // arrived, never for the sticker the bubble showed before.
    readonly property bool needsPlayer: path !== "" && !isGif && (playing || !started)
    readonly property bool needsImage: path !== "" && isGif
    // The path they read, so that one going away never reads the next message's
    // file (a voice note is no GIF).
    property bool playerWanted: false
    property bool imageWanted: false
    property string settledPath
    onNeedsPlayerChanged: settling.restart()
    onNeedsImageChanged: settling.restart()
    onPathChanged: settling.restart()
    Component.onCompleted: settling.restart()

    Timer {
        id: settling

        interval: 0
        onTriggered: {
            media.playerWanted = media.needsPlayer;
            media.imageWanted = media.needsImage;
            media.settledPath = media.path;
        }
    }

    implicitWidth: details.width > 0 ? Math.min(maximumWidth, details.width) : maximumWidth
    implicitHeight: implicitWidth * (details.width > 0 && details.height > 0 ? Math.min(details.height / details.width, 1.4) : 0.75)
    Accessible.role: Accessible.Graphic
    Accessible.ignored: !media.shown
    Accessible.name: isAnimation ? qsTr("GIF") : qsTr("Video, %1").arg(Formats.duration(details.duration))
    Accessible.onPressAction: media.activate()

    function activate() {
        if (media.path === "")
            return;
        if (media.isAnimation || media.started)
            media.opened();
        else
            media.started = true;
    }

    Rectangle {
        anchors.fill: parent
        radius: 10
        color: "black"
        clip: true

        Image {
            anchors.fill: parent
            source: media.details.minithumbnail
            fillMode: Image.PreserveAspectCrop
            visible: media.path === ""
        }

        // GIFs play as images; other videos through the media player.
        Loader {
            anchors.fill: parent
            active: media.imageWanted
            sourceComponent: AnimatedImage {
                source: LocalFile.url(media.settledPath)
                fillMode: Image.PreserveAspectFit
                playing: media.playing
                cache: false
            }
        }

        Loader {
            anchors.fill: parent
            active: media.playerWanted
            sourceComponent: Item {
                VideoOutput {
                    id: output

                    anchors.fill: parent
                    fillMode: VideoOutput.PreserveAspectFit
                }
                MediaPlayer {
                    source: LocalFile.url(media.settledPath)
                    videoOutput: output
                    audioOutput: AudioOutput {
                        muted: true
                    }
                    loops: MediaPlayer.Infinite
                    // Until played, the first frame: play and pause at once.
                    Component.onCompleted: {
                        play();
                        if (!media.playing)
                            pause();
                    }
                }
            }
        }
    }

    Rectangle {
        anchors.centerIn: parent
        width: 48
        height: 48
        radius: 24
        color: Qt.rgba(0, 0, 0, 0.5)
        visible: !media.isAnimation && !media.started && media.path !== ""

        SymbolIcon {
            anchors.centerIn: parent
            anchors.horizontalCenterOffset: 2
            width: 22
            height: 22
            name: "play.fill"
            color: "white"
        }
    }

    DownloadRing {
        anchors.centerIn: parent
        visible: media.path === ""
        progress: media.progress
        shown: media.shown
    }

    Rectangle {
        anchors {
            left: parent.left
            bottom: parent.bottom
            margins: 6
        }
        width: durationText.implicitWidth + 10
        height: 20
        radius: 10
        color: Qt.rgba(0, 0, 0, 0.5)
        visible: media.details.duration > 0 || media.isAnimation

        Text {
            id: durationText

            anchors.centerIn: parent
            text: media.isAnimation ? qsTr("GIF") : Formats.duration(media.details.duration)
            color: "white"
            font.pixelSize: 12
        }
    }

    IconButton {
        anchors.fill: parent
        opacity: 0
        visible: media.path !== ""
        Accessible.ignored: true
        onClicked: media.activate()
    }

    onOnScreenChanged: if (!onScreen) started = false
}
