import QtQuick
import QtMultimedia
import Vost.Render

// The transcript's one sound player: a voice message or audio file that starts
// stops the one playing before it. The player is made when something first plays.
Item {
    id: playback

    // The file playing or paused; "" when none.
    property string path
    readonly property bool playing: player.item !== null && player.item.playbackState === MediaPlayer.PlayingState
    readonly property real position: player.item !== null ? player.item.position : 0
    readonly property real duration: player.item !== null ? player.item.duration : 0

    function toggle(file) {
        player.active = true;
        const media = player.item;
        if (file === path && playing) {
            media.pause();
            return;
        }
        if (file !== path) {
            media.stop();
            path = file;
            media.source = LocalFile.url(file);
        }
        media.play();
    }

    function stop() {
        if (player.item)
            player.item.stop();
        path = "";
    }

    Loader {
        id: player

        active: false
        sourceComponent: MediaPlayer {
            audioOutput: AudioOutput {}
            onMediaStatusChanged: if (mediaStatus === MediaPlayer.EndOfMedia) playback.stop()
        }
    }
}
